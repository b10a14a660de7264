#pragma once

#include "ctl/place_options.h"

namespace horavex {

/// What a year is calculated of: a place, a method and the year.
struct YearCall {
    PlaceOptions place;
    int year = 0;  // Gregorian
};

/// All options of a place and a method, and --year.
void AddYearCallOptions(CLI::App& command, YearCall& call);

/// Refuses the usage where a call leaves open what the times depend on. A city leaves nothing open.
void RequireAll(const PlaceOptions& place);

/// Makes place and method of a call the working ones, as ApplyPlace does.
void TakeYearCall(const YearCall& call);

}  // namespace horavex
