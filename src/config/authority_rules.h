#pragma once

#include "config/authorities.h"
#include "engine/moment_rules.h"

namespace horavex {

/// What a method asks of a year's moments beyond its angles of Fajr and Isha. Its Ramadan is the
/// published one, and the arithmetic one in years before and after these. Throws as the reader of
/// the published months does, for a method that needs them. year: Gregorian.
MomentRules RulesOf(const Authority& authority, int year);

}  // namespace horavex
