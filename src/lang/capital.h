#pragma once

#include <string>

namespace horavex {

/// A word as it begins a title or a line: "November" where the language writes it small inside a
/// sentence. Languages that do begin their months and days with a letter of ASCII.
inline std::string WithCapital(std::string text) {
    if (!text.empty() && text.front() >= 'a' && text.front() <= 'z') {
        text.front() = static_cast<char>(text.front() - 'a' + 'A');
    }
    return text;
}

}  // namespace horavex
