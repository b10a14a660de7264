#pragma once

#include "engine/year_calculation.h"
#include "floors/export_floor.h"

namespace horavex::bench {

/// The year 2026 in Mecca.
YearInputs MeccaIn2026();

/// Takes Mecca and its year into the program's state, as an export finds them.
void TakeMeccaIn2026();

/// The text pages of the program's year.
std::string TextPages();

}  // namespace horavex::bench
