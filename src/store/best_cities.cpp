#include "store/best_cities.h"

#include <algorithm>
#include <numeric>
#include <string_view>

#include "store/city_match.h"

namespace horavex {

namespace {

constexpr std::size_t kBits = 64;
constexpr std::size_t kPairWords = 4;
constexpr std::uint64_t kAllBits = ~std::uint64_t{0};

/// One of 256.
std::size_t NumberOfPair(char first, char second) {
    const auto number =
        static_cast<unsigned char>(first) * 31U + static_cast<unsigned char>(second);
    return number % (kPairWords * kBits);
}

std::uint64_t BitOf(std::size_t number) {
    return std::uint64_t{1} << number % kBits;
}

/// Letters from a to z have one of their own each, digits too.
std::uint64_t LetterBit(char letter) {
    const auto code = static_cast<unsigned char>(letter);
    return BitOf(code >= 'a' ? code - 'a' : 26U + code % 38U);
}

std::uint16_t HeadOf(char first, char second) {
    return static_cast<std::uint16_t>(static_cast<unsigned char>(first) |
                                      static_cast<unsigned char>(second) << 8U);
}

std::uint64_t BitOfThree(std::string_view text) {
    return BitOf(NumberOfPair(text[0], text[1]) * 7U + static_cast<unsigned char>(text[2]));
}

std::uint64_t BitOfFour(std::string_view text) {
    return BitOf(NumberOfPair(text[0], text[1]) * 7U + NumberOfPair(text[2], text[3]));
}

using PairBits = std::array<std::uint64_t, kPairWords>;

void Set(PairBits& bits, std::size_t pair) {
    bits[pair / kBits] |= BitOf(pair);
}

/// The bits of one city's names.
struct NameBits {
    std::uint64_t letters = 0;
    std::uint64_t initials = 0;
    PairBits pairs{};
    PairBits starts{};
    std::uint64_t startThrees = 0;
    PairBits otherStarts{};
    std::uint64_t otherThrees = 0;
    std::uint64_t otherFours = 0;
};

void TakeOwnName(NameBits& bits, std::string_view folded) {
    bool startsAWord = false;  // but for the first
    for (std::size_t at = 0; at + 1 < folded.size(); ++at) {
        const std::uint64_t letter = LetterBit(folded[at]);
        const std::size_t pair = NumberOfPair(folded[at], folded[at + 1]);
        bits.letters |= letter;
        Set(bits.pairs, pair);
        if (startsAWord) {
            bits.initials |= letter;
            Set(bits.starts, pair);
        }
        if ((startsAWord || at == 0) && at + 2 < folded.size()) {
            bits.startThrees |= BitOfThree(folded.substr(at));
        }
        startsAWord = !IsWordCharacter(folded[at]);
    }
}

/// folded: with a comma at both ends, or empty.
void TakeOtherNames(NameBits& bits, std::string_view folded) {
    for (std::size_t at = folded.find(','); at + 3 < folded.size(); at = folded.find(',', at + 1)) {
        const std::string_view name = folded.substr(at + 1);
        Set(bits.otherStarts, NumberOfPair(name[0], name[1]));
        bits.otherThrees |= BitOfThree(name);
        bits.otherFours |= name.size() < 4 ? 0 : BitOfFour(name);
    }
}

std::uint8_t ClampedLength(std::size_t length) {
    return static_cast<std::uint8_t>(std::min<std::size_t>(length, 0xFF));
}

/// Bytes before the province or the country.
std::uint8_t LengthOfName(std::string_view folded) {
    return ClampedLength(std::min(folded.find(", "), folded.find(" - ")));
}

std::vector<std::uint32_t> PositionsByRank(const std::vector<ListedCity>& cities) {
    std::vector<std::uint32_t> positions(cities.size());
    std::iota(positions.begin(), positions.end(), 0U);
    std::ranges::stable_sort(positions, {},
                             [&](std::uint32_t at) { return OrderOf(cities[at].rank); });
    return positions;
}

/// The hits by the goodness of their matches, each kind in the order of ranks.
class Tally {
public:
    explicit Tally(std::size_t most) : most_(most), uselessFrom_(most == 0 ? kWholeName : kNone) {}

    /// False where as many are at least as good.
    bool Counts(Match match) const { return match < uselessFrom_; }

    void Add(const CityHit& hit, Match match) {
        hits_.at(match).push_back(hit);
        std::size_t asGood = 0;
        for (uselessFrom_ = kWholeName; uselessFrom_ < kNone; ++uselessFrom_) {
            asGood += hits_[uselessFrom_].size();
            if (asGood >= most_) {
                break;
            }
        }
    }

    std::vector<CityHit> Best() const {
        std::vector<CityHit> best;
        for (const auto& hits : hits_) {
            const std::size_t count = std::min(hits.size(), most_ - best.size());
            best.insert(best.end(), hits.begin(),
                        hits.begin() + static_cast<std::ptrdiff_t>(count));
        }
        return best;
    }

private:
    std::size_t most_;
    std::uint8_t uselessFrom_;
    std::array<std::vector<CityHit>, kNone> hits_;
};

}  // namespace

/// What is searched for, and its bits.
struct BestCities::Question {
    explicit Question(const std::string& text) : wanted(WantedOf(text)) {
        const std::string& own = wanted.own;
        startThree = own.size() < 3 ? kAllBits : BitOfThree(own);
        for (std::size_t at = 0; at + 1 < own.size(); ++at) {
            pairs.push_back(NumberOfPair(own[at], own[at + 1]));
        }
        if (!own.empty()) {
            isOneName = own.find_first_of(",-") == std::string::npos;
            letter = LetterBit(own[0]);
            head = HeadOf(own[0], own.size() > 1 ? own[1] : '\0');
            headMask = own.size() > 1 ? 0xFFFF : 0xFF;
        }
        if (wanted.beginning != 0) {
            const std::string_view other = std::string_view(wanted.other).substr(1);
            otherStart = NumberOfPair(other[0], other[1]);
            otherThree = other.size() < 3 ? kAllBits : BitOfThree(other);
            otherFour = other.size() < 4 ? kAllBits : BitOfFour(other);
        }
    }

    Wanted wanted;
    bool isOneName = false;          // without a province or a country behind it
    std::vector<std::size_t> pairs;  // of the own name
    std::uint64_t letter = 0;        // its first
    std::uint64_t startThree = 0;
    std::uint16_t head = 0;
    std::uint16_t headMask = 0;
    std::size_t otherStart = 0;
    std::uint64_t otherThree = 0;
    std::uint64_t otherFour = 0;  // both 0 where other names do not count
};

BestCities::BestCities(const std::vector<ListedCity>& cities)
    : cities_(cities), order_(PositionsByRank(cities)) {
    const auto size = order_.size();
    wellKnown_ = static_cast<std::size_t>(std::ranges::count_if(cities, IsWellKnown));
    heads_.resize(size);
    lengths_.resize(size);
    for (Words* words : {&letters_, &initials_, &startThrees_, &otherThrees_, &otherFours_}) {
        words->resize(size);
    }
    for (PairWords* pairs : {&pairs_, &starts_, &otherStarts_}) {
        std::ranges::for_each(*pairs, [&](Words& words) { words.resize(size); });
    }
    for (std::size_t i = 0; i < size; ++i) {
        Take(i, cities[order_[i]]);
    }
}

void BestCities::Take(std::size_t i, const ListedCity& city) {
    NameBits bits;
    TakeOwnName(bits, city.folded);
    TakeOtherNames(bits, city.foldedNames);
    heads_[i] = city.folded.size() > 1 ? HeadOf(city.folded[0], city.folded[1]) : 0;
    lengths_[i] = LengthOfName(city.folded);
    letters_[i] = bits.letters;
    initials_[i] = bits.initials;
    startThrees_[i] = bits.startThrees;
    otherThrees_[i] = bits.otherThrees;
    otherFours_[i] = bits.otherFours;
    for (std::size_t word = 0; word < kPairWords; ++word) {
        pairs_[word][i] = bits.pairs[word];
        starts_[word][i] = bits.starts[word];
        otherStarts_[word][i] = bits.otherStarts[word];
    }
}

bool BestCities::Has(const PairWords& words, std::size_t i, std::size_t pair) {
    return (words[pair / kBits][i] & BitOf(pair)) != 0;
}

bool BestCities::MayHold(std::size_t i, const Question& question) const {
    return (letters_[i] & question.letter) != 0 &&
           std::ranges::all_of(question.pairs,
                               [&](std::size_t pair) { return Has(pairs_, i, pair); });
}

Match BestCities::OwnAtBest(std::size_t i, const Question& question) const {
    if ((startThrees_[i] & question.startThree) == 0) {
        return kAnyPart;
    }
    if ((heads_[i] & question.headMask) == question.head) {
        if (!question.isOneName || lengths_[i] == ClampedLength(question.wanted.own.size())) {
            return kWholeName;
        }
        const bool goesOn =
            question.pairs.empty() && IsWordCharacter(static_cast<char>(heads_[i] >> 8U));
        return goesOn ? kNameBeginning : kNameThenWord;
    }
    const bool hasStart = question.pairs.empty() ? (initials_[i] & question.letter) != 0
                                                 : Has(starts_, i, question.pairs[0]);
    return hasStart ? kWordBeginning : kAnyPart;
}

Match BestCities::OtherAtBest(std::size_t i, const Question& question) const {
    if ((otherFours_[i] & question.otherFour) == 0 ||
        (otherThrees_[i] & question.otherThree) == 0 ||
        !Has(otherStarts_, i, question.otherStart)) {
        return kNone;
    }
    return i < wellKnown_ ? kWholeName : kWholeOtherName;
}

std::vector<CityHit> BestCities::Find(const std::string& text, std::size_t most) const {
    const Question question(text);
    Tally tally(most);
    for (std::size_t i = 0; i < order_.size() && !question.wanted.own.empty(); ++i) {
        const bool mayOwn = tally.Counts(OwnAtBest(i, question)) && MayHold(i, question);
        if (!mayOwn && !tally.Counts(OtherAtBest(i, question))) {
            continue;
        }
        const ListedCity& city = cities_[order_[i]];
        if (const auto match = MatchOf(city, question.wanted)) {
            const std::string_view other = OtherNameAt(city, match->other);
            tally.Add({&city, other, match->match == kWholeName}, match->match);
        }
    }
    return tally.Best();
}

}  // namespace horavex
