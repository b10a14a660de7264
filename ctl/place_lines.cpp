#include "ctl/place_lines.h"

#include "ctl/command.h"
#include "ctl/csv_record.h"

namespace horavex {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr const char* kBlanks = " \t";

bool HasState(const std::string& text, CsvState state) {
    return ReadCsvRecord(text).state == state;
}

}  // namespace

PlaceLines::PlaceLines(const std::string& path) : reader_(path, kLongestPlaceLine + 1) {
    auto first = NextFilled();
    if (!first) {
        return;
    }
    if (first->text.starts_with(kByteOrderMark)) {
        first->text.erase(0, kByteOrderMark.size());
    }
    if (first->text[first->text.find_first_not_of(kBlanks)] == '{') {
        firstJson_ = first;
        return;
    }
    const CsvRecord head = ReadCsvRecord(first->text);
    if (head.state != CsvState::kWhole) {
        RefuseUsage("the quotes of the head of " + path + " are wrong");
    }
    columns_ = head.fields;
}

std::optional<PlaceLine> PlaceLines::Next() {
    if (firstJson_) {
        return std::exchange(firstJson_, std::nullopt);
    }
    auto record = NextFilled();
    if (record && !columns_.empty()) {
        TakeOpenLines(*record);
    }
    return record;
}

std::optional<std::string> PlaceLines::NextLine() {
    ++number_;
    if (putBack_.empty()) {
        return reader_.Next();
    }
    std::string line = std::move(putBack_.front());
    putBack_.pop_front();
    return line;
}

std::optional<PlaceLine> PlaceLines::NextFilled() {
    while (const auto line = NextLine()) {
        if (line->find_first_not_of(kBlanks) != line->npos) {
            return PlaceLine{number_, *line};
        }
    }
    return std::nullopt;
}

void PlaceLines::TakeOpenLines(PlaceLine& record) {
    std::string whole = record.text;
    std::deque<std::string> taken;
    while (HasState(whole, CsvState::kOpen) && whole.size() <= kLongestPlaceLine) {
        const auto line = NextLine();
        if (!line) {
            break;
        }
        taken.push_back(*line);
        whole += "\n" + *line;
    }
    if (HasState(whole, CsvState::kWhole) && whole.size() <= kLongestPlaceLine) {
        record.text = whole;
        return;
    }
    number_ = record.number;
    putBack_.insert(putBack_.begin(), taken.begin(), taken.end());
}

}  // namespace horavex
