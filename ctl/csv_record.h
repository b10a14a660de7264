#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace horavex {

enum class CsvState {
    kWhole,
    kOpen,    // a quote has not closed: the record goes on in the next line
    kBroken,  // something stands between a closing quote and the comma
};

/// A record by RFC 4180: fields between commas, in quotes where they hold commas, quotes, which
/// are doubled then, or ends of lines.
struct CsvRecord {
    std::vector<std::string> fields;  // those in front of what is wrong
    CsvState state = CsvState::kWhole;
};

/// text: without the record's end.
CsvRecord ReadCsvRecord(std::string_view text);

/// A text as a field, in quotes where it needs them.
std::string CsvField(std::string_view text);

}  // namespace horavex
