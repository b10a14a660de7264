#include "ctl/csv_record.h"

#include <optional>

namespace horavex {

namespace {

/// Takes a quoted field off a text that stands behind its first quote; nothing where no quote ends
/// it.
std::optional<std::string> TakeQuoted(std::string_view& text) {
    std::string field;
    while (true) {
        const std::size_t quote = text.find('"');
        if (quote == text.npos) {
            return std::nullopt;
        }
        field += text.substr(0, quote);
        text.remove_prefix(quote + 1);
        if (!text.starts_with('"')) {
            return field;
        }
        field += '"';
        text.remove_prefix(1);
    }
}

std::string TakePlain(std::string_view& text) {
    std::string field(text.substr(0, text.find(',')));
    text.remove_prefix(field.size());
    return field;
}

/// Takes the next field off; false where it is not whole.
bool TakeField(std::string_view& text, CsvRecord& record) {
    if (!text.starts_with('"')) {
        record.fields.push_back(TakePlain(text));
        return true;
    }
    text.remove_prefix(1);
    const auto field = TakeQuoted(text);
    if (!field || !(text.empty() || text.starts_with(','))) {
        record.state = field ? CsvState::kBroken : CsvState::kOpen;
        return false;
    }
    record.fields.push_back(*field);
    return true;
}

}  // namespace

CsvRecord ReadCsvRecord(std::string_view text) {
    CsvRecord record;
    while (TakeField(text, record) && !text.empty()) {
        text.remove_prefix(1);  // the comma, behind which there is one more field
    }
    return record;
}

std::string CsvField(std::string_view text) {
    if (text.find_first_of(",\"\r\n") == text.npos) {
        return std::string(text);
    }
    std::string field = "\"";
    for (const char letter : text) {
        field.append(letter == '"' ? 2 : 1, letter);
    }
    return field + "\"";
}

}  // namespace horavex
