#include "store/city_match.h"

#include <algorithm>

#include "base/fold.h"
#include "base/text.h"

namespace horavex {

namespace {

bool BeginsAWord(const std::string& folded, const std::string& text) {
    for (std::size_t at = folded.find(text); at != std::string::npos;
         at = folded.find(text, at + 1)) {
        if (!IsWordCharacter(folded[at - 1])) {  // a match at 0 has been told apart before
            return true;
        }
    }
    return false;
}

Match MatchBeginning(const std::string& folded, std::size_t length) {
    const std::string_view rest = std::string_view(folded).substr(length);
    if (rest.empty() || rest.starts_with(", ") || rest.starts_with(" - ")) {
        return kWholeName;
    }
    return IsWordCharacter(rest.front()) ? kNameBeginning : kNameThenWord;
}

Match MatchOwnName(const std::string& folded, const std::string& text) {
    const std::size_t at = folded.find(text);
    if (at == std::string::npos) {
        return kNone;
    }
    if (at == 0) {
        return MatchBeginning(folded, text.size());
    }
    return BeginsAWord(folded, text) ? kWordBeginning : kAnyPart;
}

/// A match with one of the other names; at: where it begins in the folded ones.
struct OtherMatch {
    Match match = kNone;
    std::size_t at = 0;
};

/// One of 64 bits for the first two bytes of a folded name, so that most cities need no look at
/// their names.
std::uint64_t BeginningBit(std::string_view name) {
    const auto first = static_cast<unsigned char>(name[0]);
    const auto second = static_cast<unsigned char>(name[1]);
    return std::uint64_t{1} << ((first * 31U + second) % 64U);
}

/// name: a comma and the folded beginning of a name, two bytes or more.
OtherMatch MatchOtherNames(const std::string& foldedNames, const std::string& name) {
    OtherMatch best;
    for (std::size_t at = foldedNames.find(name); at != std::string::npos;
         at = foldedNames.find(name, at + 1)) {
        if (foldedNames[at + name.size()] == ',') {
            return {kWholeOtherName, at};
        }
        best = best.match == kNone ? OtherMatch{kOtherBeginning, at} : best;
    }
    return best;
}

/// Those of small towns are many and little known.
Match MatchAmongOwn(Match match, const ListedCity& city) {
    return match == kWholeOtherName && IsWellKnown(city) ? kWholeName : match;
}

}  // namespace

Wanted WantedOf(const std::string& text) {
    const std::string trimmed(Trim(text));
    const std::string name = FoldCityName(trimmed);
    const bool isName = name.size() > 1 && name.find(',') == std::string::npos;
    return {FoldForSearch(trimmed), "," + name, isName ? BeginningBit(name) : 0};
}

bool IsWordCharacter(char c) {
    return (c >= 'a' && c <= 'z') || IsDigit(c) || static_cast<unsigned char>(c) >= 0x80;
}

std::optional<CityMatch> MatchOf(const ListedCity& city, const Wanted& wanted) {
    const Match own = MatchOwnName(city.folded, wanted.own);
    const bool mayMatch = own != kWholeName && (city.beginnings & wanted.beginning) != 0;
    const OtherMatch other =
        mayMatch ? MatchOtherNames(city.foldedNames, wanted.other) : OtherMatch();
    const Match otherMatch = MatchAmongOwn(other.match, city);
    if (otherMatch < own) {
        return CityMatch{otherMatch, static_cast<std::uint32_t>(other.at)};
    }
    return own == kNone ? std::nullopt : std::optional(CityMatch{own, kOwnName});
}

std::string_view OtherNameAt(const ListedCity& city, std::uint32_t at) {
    if (at == kOwnName) {
        return {};
    }
    const auto begin = city.foldedNames.begin();
    auto before = std::count(begin, begin + static_cast<std::ptrdiff_t>(at), ',');
    std::string_view names = city.otherNames;
    for (; before > 0; --before) {
        names.remove_prefix(names.find(',') + 1);
    }
    return names.substr(0, names.find(','));
}

std::uint16_t OrderOf(std::uint16_t rank) {
    return static_cast<std::uint16_t>(rank - 1);
}

bool IsWellKnown(const ListedCity& city) {
    constexpr std::uint16_t kWellKnownCities = 5000;  // about those of 100,000 inhabitants
    return OrderOf(city.rank) < kWellKnownCities;
}

std::uint64_t BeginningsOf(std::string_view foldedNames) {
    std::uint64_t beginnings = 0;
    for (std::size_t at = 0; at + 2 < foldedNames.size(); ++at) {
        if (foldedNames[at] == ',') {
            beginnings |= BeginningBit(foldedNames.substr(at + 1));
        }
    }
    return beginnings;
}

}  // namespace horavex
