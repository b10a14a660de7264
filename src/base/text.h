#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace horavex {

bool IsDigit(char c);

/// The text without blanks and tabs at both ends.
std::string_view Trim(std::string_view text);

/// Capitals A to Z made small; every other character stays.
std::string AsciiLower(std::string_view text);

/// True when both texts are the same but for the case of A to Z.
bool EqualsIgnoringCase(std::string_view a, std::string_view b);

/// The order of the texts with their capitals made small.
bool ComesFirstIgnoringCase(std::string_view a, std::string_view b);

/// The parts between separators: one more than there are separators, empty ones included.
std::vector<std::string> Split(std::string_view text, char separator);

}  // namespace horavex
