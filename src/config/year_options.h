#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "config/authorities.h"
#include "engine/year_rules.h"
#include "store/options.h"

namespace horavex {

/// The options that a year goes by, as values.
struct YearOptions {
    std::string zone;  // name in the zone database; empty for the record's zone and daylight days
    HighLatitudeRule highLatitude = HighLatitudeRule::kNone;
    int ishaInterval = 0;                     // minutes
    int ishaIntervalRamadan = 0;              // minutes
    double maghribAngle = 0.0;                // degrees
    std::array<int, kPrayerCount> offsets{};  // minutes
    HijriSource hijri = HijriSource::kArithmetic;
    int hijriAdjustment = 0;  // days
    bool sunOfTheDay = false;
    bool aroundTheDay = false;  // tables tell imsak, Duha and the parts of the night

    bool operator==(const YearOptions&) const = default;
};

/// The stored options, the zone apart.
YearOptions ReadRuleOptions();

/// The stored options, with the zone of a city where its clock is to count. Where the files of the
/// zones cannot be used that is told, and the record's zone counts.
YearOptions ReadYearOptions(std::int16_t cityIndex);

/// Stores them, the zone apart. Where nothing changes nothing is written, and what changes nothing
/// by itself becomes absent.
void SaveYearOptions(const YearOptions& options);

/// Stores whether the zone follows the city: 1, or 0, which is absent.
void SaveZoneOption(int value);

/// Puts what a method asks beyond its angles of Fajr and Isha in the place of the options: the
/// intervals, the angle of Maghrib, the margins as offsets.
void TakeAuthority(const Authority& authority, YearOptions& options);

/// What they ask of a Gregorian year. Ramadan is the published one, with the adjustment, and the
/// arithmetic one in years before and after these; where the file of the published months cannot be
/// used that is told, and the arithmetic calendar counts. Throws UnknownZoneFault for a zone that
/// the zone database does not have.
YearRules RulesOfYear(const YearOptions& options, std::int16_t year);

/// The same, but a zone that the zone database does not have counts as none.
YearRules PossibleRulesOfYear(YearOptions options, std::int16_t year);

/// That of a year by the stored options and the working city.
YearRules StoredRulesOfYear(std::int16_t year);

}  // namespace horavex
