#pragma once

#include <string>
#include <vector>

#include "calendar/hijri_calendar.h"
#include "engine/moment_rules.h"

namespace horavex {

/// What the options ask of a year. By default nothing.
struct YearRules {
    MomentRules moments;
    std::vector<HijriDate> hijri;  // by row; empty for the arithmetic calendar
    std::string zoneName;          // of moments.zone
    std::string method;            // its English name; empty for angles of one's own
};

}  // namespace horavex
