#include "store/line_file.h"

#include <algorithm>

#include "base/bytes.h"
#include "base/fault.h"
#include "platform/platform.h"

namespace horavex {

std::vector<std::string> ReadLineFile(const std::string& path) {
    TextStore texts;
    const auto lines = KeepLineFile(path, texts);
    return {lines.begin(), lines.end()};
}

std::vector<std::string_view> KeepLineFile(const std::string& path, TextStore& texts) {
    std::string_view rest = texts.Keep(TextIn(Ports().programFolder.ReadWhole(path)));
    std::vector<std::string_view> lines;
    lines.reserve(static_cast<std::size_t>(std::ranges::count(rest, '\n')));
    while (!rest.empty()) {
        const std::size_t end = rest.find('\n');
        if (end == std::string_view::npos) {
            throw BoundsFault(path + ": the last line is cut short");
        }
        lines.push_back(rest.substr(0, end));
        rest.remove_prefix(end + 1);
    }
    return lines;
}

}  // namespace horavex
