#include "windows/frm_crescent.h"

namespace horavex {

CrescentForm::CrescentForm()
    : Form("frmCrescent", {.caption = "Crescent", .width = 18000, .height = 10050}) {}

CrescentForm::~CrescentForm() = default;

}  // namespace horavex
