#pragma once

#include "base/check_report.h"

namespace horavex {

/// Looks through the help of the program folder: that the help file names pages, that each is there
/// in English, and that each page of any language has a title. Never throws.
void CheckHelp(CheckReport& report);

}  // namespace horavex
