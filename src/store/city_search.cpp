#include "store/city_search.h"

#include <algorithm>
#include <optional>

#include "base/fold.h"
#include "base/text.h"

namespace horavex {

namespace {

/// How well a city matches; the smaller the better.
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

bool IsWordCharacter(char c) {
    return (c >= 'a' && c <= 'z') || IsDigit(c) || static_cast<unsigned char>(c) >= 0x80;
}

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

Match MatchOf(const std::string& folded, const std::string& text) {
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

/// foldedNames: with a comma at both ends.
std::uint64_t BeginningsOf(std::string_view foldedNames) {
    std::uint64_t beginnings = 0;
    for (std::size_t at = 0; at + 2 < foldedNames.size(); ++at) {
        if (foldedNames[at] == ',') {
            beginnings |= BeginningBit(foldedNames.substr(at + 1));
        }
    }
    return beginnings;
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

/// The name that stands at a place of the folded ones.
std::string_view OtherNameAt(const ListedCity& city, std::size_t at) {
    const auto begin = city.foldedNames.begin();
    auto before = std::count(begin, begin + static_cast<std::ptrdiff_t>(at), ',');
    std::string_view names = city.otherNames;
    for (; before > 0; --before) {
        names.remove_prefix(names.find(',') + 1);
    }
    return names.substr(0, names.find(','));
}

/// What a search looks for.
struct Wanted {
    std::string own;          // in own names
    std::string other;        // in other ones, a comma before it
    std::uint64_t beginning;  // of the latter; 0 where other names do not count
};

Wanted WantedOf(const std::string& text) {
    const std::string trimmed(Trim(text));
    const std::string name = FoldCityName(trimmed);
    const bool isName = name.size() > 1 && name.find(',') == std::string::npos;
    return {FoldForSearch(trimmed), "," + name, isName ? BeginningBit(name) : 0};
}

/// Cities without a rank come last.
std::uint16_t OrderOf(std::uint16_t rank) {
    return static_cast<std::uint16_t>(rank - 1);
}

/// A hit before it is in its place; small, for a single letter hits nearly every city.
struct RankedHit {
    std::uint64_t order;  // the best first: match, rank by population, position in the list
    std::uint32_t city;   // position in the list
    std::uint32_t other;  // where the matching name begins in the folded other ones, or kOwnName
};

constexpr std::uint32_t kOwnName = 0xFFFFFFFF;
constexpr std::uint16_t kWellKnownCities = 5000;  // about those of 100,000 inhabitants

RankedHit Ranked(Match match, const ListedCity& city, std::size_t position, std::size_t other) {
    const std::uint64_t rank = OrderOf(city.rank);
    return {std::uint64_t{match} << 48U | rank << 32U | position,
            static_cast<std::uint32_t>(position), static_cast<std::uint32_t>(other)};
}

/// A whole other name of one of the largest cities counts as its own; those of small towns are many
/// and little known.
Match MatchAmongOwn(Match match, const ListedCity& city) {
    return match == kWholeOtherName && OrderOf(city.rank) < kWellKnownCities ? kWholeName : match;
}

std::optional<RankedHit> HitOf(const ListedCity& city, std::size_t position, const Wanted& wanted) {
    const Match own = MatchOf(city.folded, wanted.own);
    const bool mayMatch = own != kWholeName && (city.beginnings & wanted.beginning) != 0;
    const OtherMatch other =
        mayMatch ? MatchOtherNames(city.foldedNames, wanted.other) : OtherMatch();
    const Match otherMatch = MatchAmongOwn(other.match, city);
    if (otherMatch < own) {
        return Ranked(otherMatch, city, position, other.at);
    }
    return own == kNone ? std::nullopt : std::optional(Ranked(own, city, position, kOwnName));
}

CityHit CityOf(const std::vector<ListedCity>& cities, const RankedHit& hit) {
    const ListedCity& city = cities[hit.city];
    return {&city, hit.other == kOwnName ? std::string_view() : OtherNameAt(city, hit.other),
            hit.order >> 48U == kWholeName};
}

}  // namespace

std::string DisplayText(const ListedCity& city) {
    const std::string province = city.province.empty() ? "" : ", " + city.province;
    return city.name + province + " - " + city.country;
}

std::string DisplayText(const CityHit& hit) {
    const std::string otherName(hit.otherName);
    return DisplayText(*hit.city) + (otherName.empty() ? "" : " (" + otherName + ")");
}

std::string FoldCityName(const std::string& name) {
    std::string folded = FoldForSearch(name);
    std::erase(folded, '\'');
    std::replace(folded.begin(), folded.end(), '-', ' ');
    return folded;
}

void SetOtherNames(ListedCity& city, const std::string& otherNames) {
    city.otherNames = otherNames;
    city.foldedNames = otherNames.empty() ? std::string() : "," + FoldCityName(otherNames) + ",";
    city.beginnings = BeginningsOf(city.foldedNames);
}

std::vector<CityHit> SearchCities(const std::vector<ListedCity>& cities, const std::string& text) {
    const Wanted wanted = WantedOf(text);
    std::vector<RankedHit> ranked;
    for (std::size_t i = 0; i < cities.size() && !wanted.own.empty(); ++i) {
        if (const auto hit = HitOf(cities[i], i, wanted)) {
            ranked.push_back(*hit);
        }
    }
    std::ranges::sort(ranked, {}, &RankedHit::order);
    std::vector<CityHit> hits;
    hits.reserve(ranked.size());
    for (const RankedHit& hit : ranked) {
        hits.push_back(CityOf(cities, hit));
    }
    return hits;
}

}  // namespace horavex
