#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace horavex {

/// The value of a key in the text of a profile file, as it stands there: surrounding blanks
/// dropped and one pair of enclosing quotes taken off. Section and key ignore the case of A to Z;
/// the first section of the name and the first key in it win. Nothing where either is missing.
std::optional<std::string_view> FindProfileValue(std::string_view file, std::string_view section,
                                                 std::string_view key);

}  // namespace horavex
