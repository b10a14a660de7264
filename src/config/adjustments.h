#pragma once

#include <string>

#include "config/year_options.h"
#include "store/angle_band.h"

namespace horavex {

/// What users adjust beyond the settings: the options of a year, and with them the two angles of
/// the settings, which belong to a method.
struct Adjustments {
    double fajrAngle = 0.0;  // degrees of depression
    double ishaAngle = 0.0;  // likewise
    YearOptions options;     // the zone stays out

    bool operator==(const Adjustments&) const = default;
};

/// Those in force.
Adjustments AcceptedAdjustments();

/// Puts the figures of a method in their place. An Isha by an interval leaves its angle as it is.
void TakeMethod(const Authority& authority, Adjustments& adjustments);

/// True where the method would change nothing.
bool IsMethod(const Authority& authority, const Adjustments& adjustments);

/// The method in force: the one that is usual in a country, else the only one that has all these
/// figures; null for figures of one's own.
const Authority* MethodOf(const Adjustments& adjustments, const std::string& country);

/// Within which both angles move at the accepted place under a rule.
AngleLimits AcceptedAngleRange(HighLatitudeRule rule);

/// Whether the angles of a method lie within these limits.
bool FitsLimits(const Authority& authority, const AngleLimits& limits);

}  // namespace horavex
