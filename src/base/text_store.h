#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

namespace horavex {

/// Many short texts that live and end together, packed one behind the other. They stay where they
/// are for as long as the store lives, also when it is moved.
class TextStore {
public:
    /// A copy of the text.
    std::string_view Keep(std::string_view text) { return Keep(text, {}); }

    /// One text of two.
    std::string_view Keep(std::string_view text, std::string_view end);

private:
    std::vector<std::unique_ptr<char[]>> blocks_;
    char* end_ = nullptr;   // of what is kept in the last block
    std::size_t free_ = 0;  // behind it
};

}  // namespace horavex
