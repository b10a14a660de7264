#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace horavex::bench {

/// Names that were folded once, to be scanned for a text at each key: what a search costs at least
/// that looks at every name, without order and other names.
class FoldedNames {
public:
    /// name: folded already.
    void Add(std::string_view name);

    /// How many names hold the text.
    std::size_t Count(std::string_view text) const;

private:
    std::string text_;                      // all names
    std::vector<std::uint32_t> ends_ = {};  // of each
};

}  // namespace horavex::bench
