#include "store/best_cities.h"

#include <algorithm>
#include <bit>
#include <functional>
#include <numeric>
#include <optional>
#include <string_view>

#include "store/city_match.h"

namespace horavex {

namespace {

constexpr std::size_t kOrders = 65536;
constexpr std::size_t kLongestLength = 0xFF;

std::uint16_t HeadOf(char first, char second) {
    return static_cast<std::uint16_t>(static_cast<unsigned char>(first) |
                                      static_cast<unsigned char>(second) << 8U);
}

std::uint8_t ClampedLength(std::size_t length) {
    return static_cast<std::uint8_t>(std::min(length, kLongestLength));
}

/// Those of equal ranks stay in their order.
std::vector<std::uint32_t> PositionsByRank(Cities cities) {
    std::vector<std::uint32_t> ends(kOrders + 1);  // of those before an order
    for (const ListedCity& city : cities) {
        ++ends[OrderOf(city.rank) + std::size_t{1}];
    }
    std::partial_sum(ends.begin(), ends.end(), ends.begin());
    std::vector<std::uint32_t> positions(cities.size());
    for (std::uint32_t at = 0; at < cities.size(); ++at) {
        positions[ends[OrderOf(cities[at].rank)]++] = at;
    }
    return positions;
}

}  // namespace

/// The hits by the goodness of their matches, each kind in the order of ranks.
class BestCities::Tally {
public:
    explicit Tally(std::size_t most) : most_(most), uselessFrom_(most == 0 ? kWholeName : kNone) {}

    /// False where as many are at least as good.
    bool Counts(Match match) const { return match < uselessFrom_; }

    void Weigh(const ListedCity& city, const Wanted& wanted) {
        if (const auto match = MatchOf(city, wanted)) {
            const std::string_view other = OtherNameOf(city, match->name);
            Add({&city, other, match->match == kWholeName}, match->match);
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

    std::size_t most_;
    std::uint8_t uselessFrom_;
    std::array<std::vector<CityHit>, kNone> hits_;
};

/// What is searched for, and the bits that matching names have.
struct BestCities::Question {
    explicit Question(const std::string& text) : wanted(WantedOf(text)) {
        wantedOwn.own = wanted.own;
        if (!wanted.own.empty()) {
            TakeOwn(wanted.own);
        }
        if (!wanted.other.empty()) {
            TakeOther(wanted.other);
        }
    }

    void TakeOwn(std::string_view own) {
        isOneName = own.find_first_of(",-") == std::string::npos;
        isOneLetter = own.size() == 1;
        head = HeadOf(own[0], isOneLetter ? '\0' : own[1]);
        headMask = isOneLetter ? 0xFF : 0xFFFF;
        parts.push_back(LetterBit(kLetterBits, own[0]));
        for (std::size_t at = 0; at + 1 < own.size(); ++at) {
            parts.push_back(PairBit(kPairBits, own.substr(at)));
        }
        begins.push_back(LetterBit(kHeadBits, own[0]));
        beginsWord.push_back(isOneLetter ? LetterBit(kInitialBits, own[0])
                                         : PairBit(kStartPairBits, own));
        if (own.size() > 2) {
            begins.push_back(ThreeBit(kStartThreeBits, own));
            beginsWord.push_back(ThreeBit(kStartThreeBits, own));
        }
    }

    void TakeOther(std::string_view name) {
        others.push_back(PairBit(kOtherPairBits, name));
        if (name.size() > 2) {
            others.push_back(ThreeBit(kOtherThreeBits, name));
        }
        if (name.size() > 3) {
            others.push_back(FourBit(kOtherFourBits, name));
        }
    }

    Wanted wanted;
    Wanted wantedOwn;        // the same without other names
    bool isOneName = false;  // without a province or a country behind it
    bool isOneLetter = false;
    std::uint16_t head = 0;
    std::uint16_t headMask = 0;
    std::vector<BitNumber> parts;       // of own names that hold the text
    std::vector<BitNumber> begins;      // besides, of those that begin with it
    std::vector<BitNumber> beginsWord;  // besides, of those with another word that does
    std::vector<BitNumber> others;  // of other names that begin with it; empty where none counts
};

/// What 512 cities may match; a lane has a bit for each of 64.
struct BestCities::Candidates {
    Candidates(const TurnedBits& bits, const Question& question)
        : parts(bits.WithAll(question.parts)),
          begin(Both(parts, bits.WithAll(question.begins))),
          beginWord(Both(parts, bits.WithAll(question.beginsWord))),
          others(question.others.empty() ? TurnedBits::Line{} : bits.WithAll(question.others)) {}

    static TurnedBits::Line Both(TurnedBits::Line a, const TurnedBits::Line& b) {
        std::ranges::transform(a, b, a.begin(), std::bit_and());
        return a;
    }

    /// Those of a lane that may count.
    std::uint64_t Worth(std::size_t lane, const Tally& tally) const {
        if (tally.Counts(kAnyPart)) {
            return parts[lane] | others[lane];
        }
        const bool isWordWorth = tally.Counts(kWordBeginning);
        return begin[lane] | others[lane] | (isWordWorth ? beginWord[lane] : 0);
    }

    TurnedBits::Line parts;
    TurnedBits::Line begin;
    TurnedBits::Line beginWord;
    TurnedBits::Line others;
};

BestCities::BestCities(Cities cities)
    : cities_(cities),
      order_(PositionsByRank(cities)),
      wellKnown_(static_cast<std::size_t>(std::ranges::count_if(cities, IsWellKnown))) {
    BitRowMaker maker;
    std::vector<BitRow> rows;  // in the order of the list, as its texts lie
    rows.reserve(cities.size());
    for (const ListedCity& city : cities) {
        const std::string_view folded = city.folded;
        heads_.push_back(folded.size() > 1 ? HeadOf(folded[0], folded[1]) : 0);
        lengths_.push_back(ClampedLength(LengthOfName(folded)));
        rows.push_back(maker.RowOf(city));
    }
    for (std::size_t first = 0; first < order_.size(); first += TurnedBits::kCities) {
        const std::size_t count = std::min(TurnedBits::kCities, order_.size() - first);
        std::array<BitRow, TurnedBits::kCities> ranked;
        std::ranges::transform(std::span(order_).subspan(first, count), ranked.begin(),
                               [&](std::uint32_t at) { return rows[at]; });
        bits_.emplace_back(std::span(ranked).first(count));
    }
}

Match BestCities::AtBest(std::size_t i, const Question& question,
                         const Candidates& candidates) const {
    const std::size_t lane = i % TurnedBits::kCities / TurnedBits::kCitiesOfLane;
    const auto has = [&](const TurnedBits::Line& line) {
        return (line[lane] >> i % TurnedBits::kCitiesOfLane & 1U) != 0;
    };
    const Match other = !has(candidates.others) ? kNone
                        : i < wellKnown_        ? kWholeName
                                                : kWholeOtherName;
    if (has(candidates.begin) && (heads_[order_[i]] & question.headMask) == question.head) {
        return std::min(other, BeginningAtBest(order_[i], question));
    }
    const Match own = has(candidates.beginWord) ? kWordBeginning
                      : has(candidates.parts)   ? kAnyPart
                                                : kNone;
    return std::min(other, own);
}

Match BestCities::BeginningAtBest(std::size_t place, const Question& question) const {
    if (!question.isOneName || lengths_[place] == ClampedLength(question.wanted.own.size())) {
        return kWholeName;
    }
    const bool goesOn =
        question.isOneLetter && IsWordCharacter(static_cast<char>(heads_[place] >> 8U));
    return goesOn ? kNameBeginning : kNameThenWord;
}

void BestCities::FindIn(std::size_t block, const Question& question, Tally& tally) const {
    const Candidates candidates(bits_[block], question);
    for (std::size_t lane = 0; lane < TurnedBits::kLanes; ++lane) {
        const std::size_t first = block * TurnedBits::kCities + lane * TurnedBits::kCitiesOfLane;
        for (std::uint64_t rest = candidates.Worth(lane, tally); rest != 0; rest &= rest - 1) {
            const std::size_t i = first + static_cast<std::size_t>(std::countr_zero(rest));
            if (tally.Counts(AtBest(i, question, candidates))) {
                const bool mayOther = (candidates.others[lane] & rest & (~rest + 1)) != 0;
                tally.Weigh(cities_[order_[i]], mayOther ? question.wanted : question.wantedOwn);
            }
        }
    }
}

std::vector<CityHit> BestCities::Find(const std::string& text, std::size_t most) const {
    const Question question(text);
    Tally tally(most);
    for (std::size_t block = 0; block < bits_.size() && !question.wanted.own.empty(); ++block) {
        FindIn(block, question, tally);
    }
    return tally.Best();
}

}  // namespace horavex
