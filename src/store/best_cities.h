#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "store/city_match.h"
#include "store/city_search.h"

namespace horavex {

/// A list of cities made ready for searches at each key, of which the best hits alone are wanted.
class BestCities {
public:
    /// cities: must not change as long as this lives.
    explicit BestCities(const std::vector<ListedCity>& cities);

    /// The first hits of SearchCities(cities, text), most of them at the most.
    std::vector<CityHit> Find(const std::string& text, std::size_t most) const;

private:
    struct Question;

    /// Words of bits, each kind of word for all cities.
    using Words = std::vector<std::uint64_t>;
    using PairWords = std::array<Words, 4>;

    static bool Has(const PairWords& words, std::size_t i, std::size_t pair);
    void Take(std::size_t i, const ListedCity& city);
    Match OwnAtBest(std::size_t i, const Question& question) const;
    bool MayHold(std::size_t i, const Question& question) const;
    Match OtherAtBest(std::size_t i, const Question& question) const;

    const std::vector<ListedCity>& cities_;

    // By rank, so that of equal matches the first ones found are the best. What a city's names may
    // match at best is told by bits for their letters and the pairs of them: few cities need a look
    // at the names themselves.
    std::vector<std::uint32_t> order_;  // positions in the list
    std::size_t wellKnown_;             // how many of them
    std::vector<std::uint16_t>
        heads_;  // the own name's first pair, the first letter in the low byte
    std::vector<std::uint8_t> lengths_;  // of it, bytes, without province and country
    Words letters_;                      // of the own name
    Words initials_;                     // of its words but the first
    PairWords pairs_;                    // of the own name
    PairWords starts_;                   // at the beginning of its words but the first
    Words startThrees_;                  // the first three letters of all its words
    PairWords otherStarts_;              // at the beginning of other names
    Words otherThrees_;                  // the first three letters of those
    Words otherFours_;                   // the first four
};

}  // namespace horavex
