#include "store/line_file.h"

#include "base/bytes.h"
#include "base/fault.h"
#include "base/text.h"
#include "platform/platform.h"

namespace horavex {

std::vector<std::string> ReadLineFile(const std::string& path) {
    auto lines = Split(StringOf(Ports().programFolder.ReadWhole(path)), '\n');
    if (!lines.back().empty()) {
        throw BoundsFault(path + ": the last line is cut short");
    }
    lines.pop_back();
    return lines;
}

}  // namespace horavex
