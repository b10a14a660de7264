#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace horavex {

/// The text in the middle of a cell of that many characters, an odd blank behind it; a text that
/// fills the cell or is longer is cut to it.
std::string CenterText(std::string_view text, std::size_t width);

}  // namespace horavex
