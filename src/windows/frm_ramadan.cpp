#include "windows/frm_ramadan.h"

namespace horavex {

RamadanForm::RamadanForm()
    : Form("frmRamadan", {.caption = "Help", .width = 7200, .height = 4800}) {}

RamadanForm::~RamadanForm() = default;

}  // namespace horavex
