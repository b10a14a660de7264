#include "windows/frm_times.h"

namespace horavex {

TimesForm::TimesForm()
    : Form("frmTimes", {.caption = "Paryer Times", .width = 6600, .height = 5700}) {}

TimesForm::~TimesForm() = default;

}  // namespace horavex
