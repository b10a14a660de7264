#include "base/text_store.h"

#include <algorithm>

namespace horavex {

namespace {

constexpr std::size_t kBlock = 1 << 18;  // bytes; a longer text has a block of its own

}  // namespace

std::string_view TextStore::Keep(std::string_view text, std::string_view end) {
    const std::size_t size = text.size() + end.size();
    if (size > free_) {
        free_ = std::max(kBlock, size);
        blocks_.push_back(std::make_unique_for_overwrite<char[]>(free_));
        end_ = blocks_.back().get();
    }
    char* const begin = end_;
    end_ = std::ranges::copy(end, std::ranges::copy(text, begin).out).out;
    free_ -= size;
    return {begin, size};
}

}  // namespace horavex
