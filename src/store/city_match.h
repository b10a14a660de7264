#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "store/city_list.h"

namespace horavex {

/// How well a city matches what is searched for; the smaller the better.
enum Match : std::uint8_t {
    kWholeName,
    kNameThenWord,
    kNameBeginning,
    kWholeOtherName,
    kOtherBeginning,
    kWordBeginning,
    kAnyPart,
    kNone
};

/// What a search looks for.
struct Wanted {
    std::string own;  // in own names
    std::string
        other;  // at the beginning of other ones, two bytes or more; empty to pass them over
};

Wanted WantedOf(const std::string& text);

/// True for a character that letters and digits are, and all beyond ASCII.
inline bool IsWordCharacter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') ||
           static_cast<unsigned char>(c) >= 0x80;
}

/// The own name as what matched, and not one of the other ones, which are numbered from 0.
inline constexpr std::uint32_t kOwnName = 0xFFFFFFFF;

struct CityMatch {
    Match match;
    std::uint32_t name;
};

/// The best match of a city's names; none where they do not match.
std::optional<CityMatch> MatchOf(const ListedCity& city, const Wanted& wanted);

/// An other name by its number; empty for kOwnName.
std::string_view OtherNameOf(const ListedCity& city, std::uint32_t name);

/// The order of a rank by population: cities without one come last.
inline std::uint16_t OrderOf(std::uint16_t rank) {
    return static_cast<std::uint16_t>(rank - 1);
}

/// True for one of the largest cities, whose whole other names count as their own.
bool IsWellKnown(const ListedCity& city);

/// Takes the first character off a name, which has some, and tells what of it counts, as in
/// FoldCityName.
std::string_view TakeFoldedOfName(std::string_view& name);

/// Takes the first name off a list of names that commas part.
std::string_view TakeName(std::string_view& names);

}  // namespace horavex
