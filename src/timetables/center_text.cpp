#include "timetables/center_text.h"

#include "base/utf8.h"

namespace horavex {

std::string CenterText(std::string_view text, std::size_t width) {
    const std::size_t length = Utf8Length(text);
    if (length >= width) {
        return std::string(Utf8FirstCharacters(text, width));
    }
    const std::size_t before = (width - length) / 2;
    return std::string(before, ' ') + std::string(text) + std::string(width - length - before, ' ');
}

}  // namespace horavex
