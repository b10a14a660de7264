#pragma once

#include <string>
#include <string_view>

namespace horavex {

/// A Latin text for comparing as people search: small letters, accents taken off, ligatures
/// written out, curved quotes made straight. Letters outside Windows-1252 stay as they are.
std::string FoldForSearch(std::string_view text);

}  // namespace horavex
