#pragma once

#include <string>

namespace horavex {

/// The text with its blanks such as no line breaks at, in UTF-8.
std::string Unbroken(std::string text);

}  // namespace horavex
