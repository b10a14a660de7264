#pragma once

#include <string>
#include <string_view>

namespace horavex {

enum class LineEnd : char {
    kWhole = 'w',
    kWithoutTable = 'n',  // the calculation told why
    kRefused = 'r',
};

/// What has become of a line of places.
struct LineAnswer {
    LineEnd end;
    std::string_view told;    // what the calculation said, or why the line is refused; one line
    std::string_view record;  // for the output; empty where the line gives none
};

/// An answer as a text between processes, and back; that lives as long as the text.
std::string PackedAnswer(LineEnd end, std::string told, const std::string& record);
LineAnswer UnpackedAnswer(std::string_view packed);

/// A line on its way to a process.
struct LineRequest {
    std::string number;  // of the line
    bool isThere;        // its record stands in the output already
    std::string text;
};

std::string PackedRequest(const LineRequest& request);
LineRequest UnpackedRequest(const std::string& packed);

}  // namespace horavex
