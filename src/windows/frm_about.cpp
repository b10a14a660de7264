#include "windows/frm_about.h"

namespace horavex {

AboutForm::AboutForm() : Form("frmAbout", {.caption = "About", .width = 7200, .height = 4500}) {}

AboutForm::~AboutForm() = default;

}  // namespace horavex
