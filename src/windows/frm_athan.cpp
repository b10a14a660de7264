#include "windows/frm_athan.h"

namespace horavex {

FrmAthan::FrmAthan()
    : Form("frmAthan", {.caption = "Athan Settings", .width = 7800, .height = 6300}) {}

FrmAthan::~FrmAthan() = default;

}  // namespace horavex
