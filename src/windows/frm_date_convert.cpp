#include "windows/frm_date_convert.h"

namespace horavex {

DateConvertForm::DateConvertForm()
    : Form("frmDateConvert", {.caption = "Date Conversion", .width = 6000, .height = 3900}) {}

DateConvertForm::~DateConvertForm() = default;

}  // namespace horavex
