#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "store/city_list.h"

namespace horavex {

// What the names of a city may match, told by bits for their letters and the pairs of them. A name
// that matches has all the bits of what it matches; the other way round is to be looked up.

/// Where the words of one kind of bit begin in a city's row: one word each, two for pairs.
enum BitKind : std::uint8_t {
    kLetterBits = 0,      // the letters of "name, province - country"
    kHeadBits = 1,        // its first letter
    kInitialBits = 2,     // the first letters of its words but the first
    kPairBits = 3,        // its pairs of letters
    kStartPairBits = 5,   // those at the beginning of its words but the first
    kStartThreeBits = 6,  // the first three letters of all its words
    kOtherPairBits = 7,   // the first two bytes of its other names
    kOtherThreeBits = 9,  // the first three
    kOtherFourBits = 10,  // the first four
    kBitWords = 11
};

/// A number of one of a row's bits.
using BitNumber = std::uint16_t;

/// The bits of the first letters of a text, which has so many.
BitNumber LetterBit(BitKind kind, char letter);
BitNumber PairBit(BitKind kind, std::string_view two);
BitNumber ThreeBit(BitKind kind, std::string_view three);
BitNumber FourBit(BitKind kind, std::string_view four);

using BitRow = std::array<std::uint64_t, kBitWords>;

/// Makes rows. What names share behind the own name, their province and country, it works out once;
/// cities must live as long as this.
class BitRowMaker {
public:
    BitRow RowOf(const ListedCity& city);

private:
    std::unordered_map<std::string_view, BitRow> ends_;
};

/// Bytes of the own name, before province and country.
std::size_t LengthOfName(std::string_view folded);

/// The rows of 512 cities, turned: each bit of a row is a line here, a bit a city.
class TurnedBits {
public:
    static constexpr std::size_t kLanes = 8;
    static constexpr std::size_t kCitiesOfLane = 64;
    static constexpr std::size_t kCities = kLanes * kCitiesOfLane;

    using Line = std::array<std::uint64_t, kLanes>;

    /// rows: as many as there are cities, at most kCities.
    explicit TurnedBits(std::span<const BitRow> rows);

    /// The cities that have all of the bits; all cities where there are none.
    Line WithAll(std::span<const BitNumber> bits) const;

private:
    std::vector<Line> lines_;
};

}  // namespace horavex
