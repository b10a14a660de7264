#pragma once

#include <CLI/CLI.hpp>
#include <optional>
#include <string>

#include "config/year_options.h"

namespace horavex {

/// Options that stand in the place of stored ones.
struct RuleOptions {
    std::optional<std::string> timeZone;      // name in the zone database
    std::optional<std::string> highLatitude;  // a word of the rule
    std::optional<int> ishaInterval;          // minutes
    std::optional<double> maghribAngle;       // degrees of depression
    std::optional<std::string> offsets;       // "fajr=2,isha=-3", minutes
    std::optional<std::string> hijri;         // a word of the calendar
};

/// --time-zone, which stands beside no --zone and no --dst-start of the command.
void AddTimeZoneOption(CLI::App& command, RuleOptions& options);

/// --high-latitude, --isha-interval, --maghrib-angle and --offset.
void AddMomentOptions(CLI::App& command, RuleOptions& options);

/// --hijri.
void AddHijriOption(CLI::App& command, RuleOptions& options);

/// Puts all but the zone in the place of what is there. Refuses the usage for offsets that are
/// none.
void TakeRules(const RuleOptions& options, YearOptions& year);

}  // namespace horavex
