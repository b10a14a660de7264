#pragma once

#include "base/check_report.h"

namespace horavex {

/// Looks through every data file of the program folder: lengths, name positions, ranges, the
/// order of cities and bands, and that no text is empty. Never throws; a file that is missing or
/// cannot be read is a problem of its own.
void CheckDataFiles(CheckReport& report);

}  // namespace horavex
