#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "linux/line_reader.h"

namespace horavex {

/// The bytes of the longest line that is read as a place.
inline constexpr std::size_t kLongestPlaceLine = 4000;

/// A record of places as it stands.
struct PlaceLine {
    std::uint64_t number;  // of its first line, from 1
    std::string text;      // without its end; longer than kLongestPlaceLine where it is cut
};

/// Places that are read one after the other: CSV with a head, or JSON lines, which begin with a
/// brace. Empty lines count for the numbers alone.
class PlaceLines {
public:
    /// path: "-" is the standard input. Reads the head. Throws FileFault for a file that cannot be
    /// read, and refuses the usage for a head whose quotes are wrong.
    explicit PlaceLines(const std::string& path);

    /// The names of the columns; none of JSON lines.
    const std::vector<std::string>& Columns() const { return columns_; }

    /// The next record. One of CSV goes over several lines where a quote does not close before;
    /// where that makes none within the longest line, it is its first line alone.
    std::optional<PlaceLine> Next();

private:
    std::optional<std::string> NextLine();
    std::optional<PlaceLine> NextFilled();
    void TakeOpenLines(PlaceLine& record);

    LineReader reader_;
    std::deque<std::string> putBack_;
    std::uint64_t number_ = 0;
    std::optional<PlaceLine> firstJson_;
    std::vector<std::string> columns_;
};

}  // namespace horavex
