#include "store/city_match.h"

#include <algorithm>

#include "base/fold.h"
#include "base/text.h"

namespace horavex {

namespace {

bool BeginsAWord(std::string_view folded, const std::string& text) {
    for (std::size_t at = folded.find(text); at != std::string_view::npos;
         at = folded.find(text, at + 1)) {
        if (!IsWordCharacter(folded[at - 1])) {  // a match at 0 has been told apart before
            return true;
        }
    }
    return false;
}

Match MatchBeginning(std::string_view folded, std::size_t length) {
    const std::string_view rest = folded.substr(length);
    if (rest.empty() || rest.starts_with(", ") || rest.starts_with(" - ")) {
        return kWholeName;
    }
    return IsWordCharacter(rest.front()) ? kNameBeginning : kNameThenWord;
}

Match MatchOwnName(std::string_view folded, const std::string& text) {
    const std::size_t at = folded.find(text);
    if (at == std::string::npos) {
        return kNone;
    }
    if (at == 0) {
        return MatchBeginning(folded, text.size());
    }
    return BeginsAWord(folded, text) ? kWordBeginning : kAnyPart;
}

/// A match with one of the other names, and its number.
struct OtherMatch {
    Match match = kNone;
    std::uint32_t name = kOwnName;
};

bool CountsForNothing(std::string_view name) {
    while (!name.empty()) {
        if (!TakeFoldedOfName(name).empty()) {
            return false;
        }
    }
    return true;
}

/// wanted: a folded text.
Match MatchOtherName(std::string_view name, std::string_view wanted) {
    while (!wanted.empty()) {
        if (name.empty()) {
            return kNone;
        }
        const std::string_view folded = TakeFoldedOfName(name);
        if (folded.size() > wanted.size() && folded.starts_with(wanted)) {
            return kOtherBeginning;
        }
        if (!wanted.starts_with(folded)) {
            return kNone;
        }
        wanted.remove_prefix(folded.size());
    }
    return CountsForNothing(name) ? kWholeOtherName : kOtherBeginning;
}

OtherMatch MatchOtherNames(std::string_view names, std::string_view wanted) {
    OtherMatch best;
    for (std::uint32_t number = 0; !names.empty() && best.match != kWholeOtherName; ++number) {
        const Match match = MatchOtherName(TakeName(names), wanted);
        best = match < best.match ? OtherMatch{match, number} : best;
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
    return {FoldForSearch(trimmed), isName ? name : std::string()};
}

std::optional<CityMatch> MatchOf(const ListedCity& city, const Wanted& wanted) {
    const Match own = MatchOwnName(city.folded, wanted.own);
    const bool mayMatch = own != kWholeName && !wanted.other.empty();
    const OtherMatch other =
        mayMatch ? MatchOtherNames(city.otherNames, wanted.other) : OtherMatch();
    const Match otherMatch = MatchAmongOwn(other.match, city);
    if (otherMatch < own) {
        return CityMatch{otherMatch, other.name};
    }
    return own == kNone ? std::nullopt : std::optional(CityMatch{own, kOwnName});
}

std::string_view OtherNameOf(const ListedCity& city, std::uint32_t name) {
    if (name == kOwnName) {
        return {};
    }
    std::string_view names = city.otherNames;
    for (; name > 0; --name) {
        TakeName(names);
    }
    return TakeName(names);
}

bool IsWellKnown(const ListedCity& city) {
    constexpr std::uint16_t kWellKnownCities = 5000;  // about those of 100,000 inhabitants
    return OrderOf(city.rank) < kWellKnownCities;
}

std::string_view TakeFoldedOfName(std::string_view& name) {
    const std::string_view folded = TakeFolded(name);
    if (folded.size() != 1) {
        return folded;
    }
    return folded[0] == '\'' ? "" : folded[0] == '-' ? " " : folded;
}

std::string_view TakeName(std::string_view& names) {
    const std::string_view name = names.substr(0, names.find(','));
    names.remove_prefix(std::min(name.size() + 1, names.size()));
    return name;
}

}  // namespace horavex
