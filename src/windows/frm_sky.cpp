#include "windows/frm_sky.h"

namespace horavex {

SkyForm::SkyForm() : Form("frmSky", {.caption = "Sky", .width = 13800, .height = 9300}) {}

SkyForm::~SkyForm() = default;

}  // namespace horavex
