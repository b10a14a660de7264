#include "windows/frm_main.h"

namespace horavex {

FrmMain::FrmMain() : Form("frmMain", {.caption = "Horavex", .width = 6300, .height = 7500}) {}

FrmMain::~FrmMain() = default;

}  // namespace horavex
