#include "windows/frm_adjust.h"

namespace horavex {

AdjustForm::AdjustForm()
    : Form("frmAdjust", {.caption = "Adjustments", .width = 13200, .height = 6300}) {}

AdjustForm::~AdjustForm() = default;

}  // namespace horavex
