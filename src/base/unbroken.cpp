#include "base/unbroken.h"

namespace horavex {

std::string Unbroken(std::string text) {
    constexpr const char* kNoBreakSpace = "\xC2\xA0";
    for (std::size_t at = text.find(' '); at != std::string::npos; at = text.find(' ', at)) {
        text.replace(at, 1, kNoBreakSpace);
    }
    return text;
}

}  // namespace horavex
