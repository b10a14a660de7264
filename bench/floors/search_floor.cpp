#include "floors/search_floor.h"

#include <cstring>

namespace horavex::bench {

void FoldedNames::Add(std::string_view name) {
    text_ += name;
    ends_.push_back(static_cast<std::uint32_t>(text_.size()));
}

std::size_t FoldedNames::Count(std::string_view text) const {
    std::size_t count = 0;
    std::size_t begin = 0;
    for (const std::uint32_t end : ends_) {
        count += memmem(text_.data() + begin, end - begin, text.data(), text.size()) != nullptr;
        begin = end;
    }
    return count;
}

}  // namespace horavex::bench
