#include "store/name_bits.h"

#include <algorithm>
#include <functional>

#include "store/city_match.h"

namespace horavex {

namespace {

constexpr std::size_t kBits = 64;  // of a word

unsigned char Code(char c) {
    return static_cast<unsigned char>(c);
}

std::size_t NumberOfPair(char first, char second) {
    return Code(first) * 31U + Code(second);
}

/// One of 64: letters from a to z have one of their own each, digits too.
std::size_t NumberOfLetter(char letter) {
    const std::size_t code = Code(letter);
    return code >= 'a' ? code - 'a' : 26U + code % 38U;
}

/// number: any, of which as many count as the kind has bits.
BitNumber BitOf(BitKind kind, std::size_t number) {
    const bool isDouble = kind == kPairBits || kind == kOtherPairBits;
    return static_cast<BitNumber>(kind * kBits + number % (isDouble ? 2 * kBits : kBits));
}

void Set(BitRow& row, BitNumber bit) {
    row[bit / kBits] |= std::uint64_t{1} << bit % kBits;
}

/// What the letters from one place to another tell of a folded text.
void TakeOwnName(BitRow& row, std::string_view folded, std::size_t begin, std::size_t end) {
    for (std::size_t at = begin; at < end; ++at) {
        const std::string_view rest = folded.substr(at);
        const bool startsAWord = at > 0 && !IsWordCharacter(folded[at - 1]);  // but the first
        Set(row, LetterBit(kLetterBits, rest[0]));
        if (startsAWord) {
            Set(row, LetterBit(kInitialBits, rest[0]));
        }
        if (rest.size() > 1) {
            Set(row, PairBit(kPairBits, rest));
            if (startsAWord) {
                Set(row, PairBit(kStartPairBits, rest));
            }
        }
        if (rest.size() > 2 && (startsAWord || at == 0)) {
            Set(row, ThreeBit(kStartThreeBits, rest));
        }
    }
}

/// A folded name's first bytes.
class Beginning {
public:
    explicit Beginning(std::string_view name) {
        while (!name.empty() && size_ < text_.size()) {
            for (const char byte : TakeFoldedOfName(name)) {
                Add(byte);
            }
        }
    }

    std::string_view Text() const { return {text_.data(), size_}; }

private:
    void Add(char byte) {
        if (size_ < text_.size()) {
            text_[size_++] = byte;
        }
    }

    std::array<char, 4> text_;
    std::size_t size_ = 0;
};

void TakeOtherNames(BitRow& row, std::string_view names) {
    while (!names.empty()) {
        const Beginning beginning(TakeName(names));
        const std::string_view text = beginning.Text();
        if (text.size() > 1) {
            Set(row, PairBit(kOtherPairBits, text));
        }
        if (text.size() > 2) {
            Set(row, ThreeBit(kOtherThreeBits, text));
        }
        if (text.size() > 3) {
            Set(row, FourBit(kOtherFourBits, text));
        }
    }
}

using Square = std::array<std::uint64_t, kBits>;

/// Halves of a square change places, then the halves of these.
template <std::size_t width>
void TurnBy(Square& square) {
    constexpr std::uint64_t kLow = ~std::uint64_t{0} / ((std::uint64_t{1} << width) + 1);
    for (std::size_t begin = 0; begin < kBits; begin += 2 * width) {
        for (std::size_t row = begin; row < begin + width; ++row) {
            const std::uint64_t other = (square[row] >> width ^ square[row + width]) & kLow;
            square[row] ^= other << width;
            square[row + width] ^= other;
        }
    }
}

/// Row r, bit c becomes row c, bit r.
void Turn(Square& square) {
    TurnBy<32>(square);
    TurnBy<16>(square);
    TurnBy<8>(square);
    TurnBy<4>(square);
    TurnBy<2>(square);
    TurnBy<1>(square);
}

}  // namespace

BitNumber LetterBit(BitKind kind, char letter) {
    return BitOf(kind, NumberOfLetter(letter));
}

BitNumber PairBit(BitKind kind, std::string_view two) {
    return BitOf(kind, NumberOfPair(two[0], two[1]));
}

BitNumber ThreeBit(BitKind kind, std::string_view three) {
    return BitOf(kind, NumberOfPair(three[0], three[1]) * 7U + Code(three[2]));
}

BitNumber FourBit(BitKind kind, std::string_view four) {
    return BitOf(kind, NumberOfPair(four[0], four[1]) * 7U + NumberOfPair(four[2], four[3]));
}

std::size_t LengthOfName(std::string_view folded) {
    return std::min({folded.find(", "), folded.find(" - "), folded.size()});
}

BitRow BitRowMaker::RowOf(const ListedCity& city) {
    const std::string_view folded = city.folded;
    const std::size_t end = std::min(LengthOfName(folded) + 1, folded.size());
    const auto [shared, isNew] =
        ends_.try_emplace(folded.substr(end - std::min<std::size_t>(end, 1)));
    if (isNew) {
        TakeOwnName(shared->second, folded, end, folded.size());
    }
    BitRow row = shared->second;
    TakeOwnName(row, folded, 0, end);
    if (!folded.empty()) {
        Set(row, LetterBit(kHeadBits, folded[0]));
    }
    TakeOtherNames(row, city.otherNames);
    return row;
}

TurnedBits::TurnedBits(std::span<const BitRow> rows) : lines_(kBitWords * kBits) {
    for (std::size_t first = 0; first < rows.size(); first += kCitiesOfLane) {
        const auto lane = rows.subspan(first, std::min(kCitiesOfLane, rows.size() - first));
        for (std::size_t word = 0; word < kBitWords; ++word) {
            Square square{};
            std::ranges::transform(lane, square.begin(),
                                   [&](const BitRow& row) { return row[word]; });
            Turn(square);
            for (std::size_t bit = 0; bit < kBits; ++bit) {
                lines_[word * kBits + bit][first / kCitiesOfLane] = square[bit];
            }
        }
    }
}

TurnedBits::Line TurnedBits::WithAll(std::span<const BitNumber> bits) const {
    Line all;
    all.fill(~std::uint64_t{0});
    for (const BitNumber bit : bits) {
        std::ranges::transform(all, lines_[bit], all.begin(), std::bit_and());
    }
    return all;
}

}  // namespace horavex
