#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "engine/year_calculation.h"

namespace horavex {

/// Minutes by prayer that an authority adds to what the sun says.
using Margins = std::array<int, kPrayerCount>;

/// A method of an authority that publishes prayer times, as far as angles, intervals and fixed
/// margins say it: no rule of high latitudes, no height of a place and no rounding.
struct Authority {
    const char* key;               // for scripts and options; never changes
    const char* name;              // English
    double fajrAngle = 0.0;        // degrees of depression
    double ishaAngle = 0.0;        // degrees of depression; 0 where an interval counts
    int ishaInterval = 0;          // minutes from Maghrib to Isha, margins apart; 0: by the angle
    int ishaIntervalRamadan = 0;   // the same in Ramadan
    double maghribAngle = 0.0;     // degrees of depression; 0 for sunset
    Margins margins{};             // minutes
    double asrRatio = 0.0;         // shadow factor; 0 leaves it to one's school
    const char* source = nullptr;  // title and address
};

/// All of them, by key.
std::span<const Authority> Authorities();

/// The one of this key; null for none.
const Authority* AuthorityOfKey(std::string_view key);

/// Those that a typed text means: the one whose key or whole name it is, else all that have it in
/// key or name. Letter case and accents do not matter.
std::vector<const Authority*> MatchingAuthorities(std::string_view text);

/// The countries in which the method is usual, by their names in the location files; no country
/// has two.
std::vector<std::string> CountriesOf(const Authority& authority);

/// The one that is usual in a country; null where none is known.
const Authority* AuthorityOfCountry(std::string_view country);

}  // namespace horavex
