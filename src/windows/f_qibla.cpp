#include "windows/f_qibla.h"

namespace horavex {

QiblaForm::QiblaForm() : Form("fQibla", {.caption = "Qibla", .width = 12600, .height = 7200}) {}

QiblaForm::~QiblaForm() = default;

}  // namespace horavex
