#pragma once

#include <string>
#include <string_view>

namespace horavex {

/// The text as it stands in marked-up text: with &, <, > and " as what stands for them.
std::string EscapedForMarkup(std::string_view text);

}  // namespace horavex
