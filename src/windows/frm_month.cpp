#include "windows/frm_month.h"

namespace horavex {

MonthForm::MonthForm() : Form("frmMonth", {.caption = "Month", .width = 14400, .height = 12360}) {}

MonthForm::~MonthForm() = default;

}  // namespace horavex
