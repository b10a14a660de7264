#pragma once

#include <string>

namespace horavex {

/// A name for a file that sorts by its number and that every file system and shell takes: "17" and
/// "São Tomé/1" are "000017-São_Tomé_1". Characters beside letters, digits, points and hyphens are
/// underscores, those that are no ASCII stay; a long name is cut.
std::string NumberedName(const std::string& number, const std::string& name);

}  // namespace horavex
