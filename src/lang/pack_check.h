#pragma once

#include "base/check_report.h"

namespace horavex {

/// Looks through every language pack of the program folder: that the language menu can name it,
/// that it can be read, and that each message, label, month and prayer name and each caption and
/// tooltip of a form is there and not empty. Keys that nothing reads are problems too.
void CheckLanguagePacks(CheckReport& report);

}  // namespace horavex
