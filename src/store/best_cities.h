#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "store/city_match.h"
#include "store/city_search.h"
#include "store/name_bits.h"

namespace horavex {

/// A list of cities made ready for searches at each key, of which the best hits alone are wanted.
class BestCities {
public:
    /// cities: must not change as long as this lives.
    explicit BestCities(Cities cities);

    /// The first hits of SearchCities(cities, text), most of them at the most.
    std::vector<CityHit> Find(const std::string& text, std::size_t most) const;

private:
    struct Question;
    struct Candidates;
    class Tally;

    Match AtBest(std::size_t i, const Question& question, const Candidates& candidates) const;
    Match BeginningAtBest(std::size_t place, const Question& question) const;
    void FindIn(std::size_t block, const Question& question, Tally& tally) const;

    Cities cities_;

    std::vector<std::uint16_t> heads_;   // of the own name, its first byte low, its second high
    std::vector<std::uint8_t> lengths_;  // of it, bytes, without province and country

    // By rank, so that of equal matches the first ones found are the best. What a city's names may
    // match at best is told by bits, so that few cities need a look at the names themselves.
    std::vector<std::uint32_t> order_;  // positions in the list
    std::size_t wellKnown_;             // how many of them
    std::vector<TurnedBits> bits_;      // in that order, of so many cities each
};

}  // namespace horavex
