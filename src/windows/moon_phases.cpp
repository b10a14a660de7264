#include "windows/moon_phases.h"

namespace horavex {

MoonPhasesForm::MoonPhasesForm()
    : Form("Moon_Phases", {.caption = "Moon Phases", .width = 12900, .height = 7200}) {}

MoonPhasesForm::~MoonPhasesForm() = default;

}  // namespace horavex
