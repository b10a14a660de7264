#include "lib/text_source.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <iterator>

#include "base/fault.h"
#include "base/text.h"

namespace horavex {

namespace {

/// Reads comma-separated text character by character.
class CsvReader {
public:
    explicit CsvReader(const std::string& text) : text_(text) {}

    std::vector<CsvRow> Read() {
        while (at_ < text_.size()) {
            ReadRow();
        }
        return rows_;
    }

private:
    void ReadRow() {
        rows_.emplace_back();
        do {
            rows_.back().push_back(ReadField());
        } while (Accept(','));
        Accept('\r');
        if (!Accept('\n') && at_ < text_.size()) {
            throw TypeMismatchFault("a quoted field goes on behind its quote");
        }
    }

    std::string ReadField() { return Accept('"') ? ReadQuoted() : ReadPlain(); }

    std::string ReadPlain() {
        const std::size_t end = std::min(text_.find_first_of(",\r\n", at_), text_.size());
        std::string field = text_.substr(at_, end - at_);
        at_ = end;
        return field;
    }

    std::string ReadQuoted() {
        std::string field;
        do {
            const std::size_t end = text_.find('"', at_);
            if (end == std::string::npos) {
                throw TypeMismatchFault("a quoted field does not end");
            }
            field += text_.substr(at_, end - at_);
            at_ = end + 1;
        } while (Accept('"') && (field += '"', true));
        return field;
    }

    bool Accept(char c) {
        const bool here = at_ < text_.size() && text_[at_] == c;
        at_ += here ? 1 : 0;
        return here;
    }

    const std::string& text_;
    std::size_t at_ = 0;
    std::vector<CsvRow> rows_;
};

/// The text of a source that begins with a heading.
std::string ReadTable(const std::string& path) {
    std::string text = ReadText(path);
    if (text.empty()) {
        throw TypeMismatchFault(path + ": there is no heading");
    }
    return text;
}

}  // namespace

std::string ReadText(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::string text{std::istreambuf_iterator<char>(in), {}};
    if (in.bad() || !in.is_open()) {
        throw FileFault(path, "cannot be read");
    }
    return text;
}

std::vector<std::string> ReadLines(const std::string& path) {
    std::vector<std::string> lines = Split(ReadTable(path), '\n');
    if (lines.back().empty()) {
        lines.pop_back();
    }
    return lines;
}

std::vector<std::string> SplitTabs(const std::string& line) {
    return Split(line, '\t');
}

std::vector<CsvRow> ReadCsv(const std::string& path) {
    const std::string text = ReadTable(path);
    return CsvReader(text).Read();
}

int WholeNumber(const std::string& text) {
    int value = 0;
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, value);
    if (result.ec != std::errc() || result.ptr != end) {
        throw TypeMismatchFault("\"" + text + "\" is not a whole number");
    }
    return value;
}

}  // namespace horavex
