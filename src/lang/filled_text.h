#pragma once

#include <string>

namespace horavex {

/// A text of a pack with a value in the place of its mark, "{time}" for example.
inline std::string FilledText(std::string text, const std::string& mark, const std::string& value) {
    const std::size_t at = text.find(mark);
    return at == std::string::npos ? text : text.replace(at, mark.size(), value);
}

}  // namespace horavex
