#include "windows/frm_azan.h"

namespace horavex {

FrmAzan::FrmAzan() : Form("frmAzan", {.caption = "Athan", .width = 5400, .height = 3390}) {}

FrmAzan::~FrmAzan() = default;

}  // namespace horavex
