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
    std::string own;          // in own names
    std::string other;        // in other ones, a comma before it
    std::uint64_t beginning;  // of the latter, as ListedCity has them; 0 where those do not count
};

Wanted WantedOf(const std::string& text);

/// True for a character that letters and digits are, and all beyond ASCII.
bool IsWordCharacter(char c);

/// Where the own name matched.
inline constexpr std::uint32_t kOwnName = 0xFFFFFFFF;

struct CityMatch {
    Match match;
    std::uint32_t other;  // where the matching name begins in the folded other ones, or kOwnName
};

/// The best match of a city's names; none where they do not match.
std::optional<CityMatch> MatchOf(const ListedCity& city, const Wanted& wanted);

/// The name that stands at a place of the folded other ones; empty for kOwnName.
std::string_view OtherNameAt(const ListedCity& city, std::uint32_t at);

/// The order of a rank by population: cities without one come last.
std::uint16_t OrderOf(std::uint16_t rank);

/// True for one of the largest cities, whose whole other names count as their own.
bool IsWellKnown(const ListedCity& city);

/// A bit for the first two bytes of each folded name. foldedNames: with a comma at both ends.
std::uint64_t BeginningsOf(std::string_view foldedNames);

}  // namespace horavex
