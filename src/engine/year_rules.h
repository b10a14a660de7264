#pragma once

#include <vector>

#include "calendar/hijri_calendar.h"
#include "engine/moment_rules.h"

namespace horavex {

/// What the options ask of a year. By default nothing.
struct YearRules {
    MomentRules moments;
    std::vector<HijriDate> hijri;  // by row; empty for the arithmetic calendar
};

}  // namespace horavex
