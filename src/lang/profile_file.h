#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace horavex {

/// The value of a key in the text of a profile file, as it stands there: surrounding blanks
/// dropped and one pair of enclosing quotes taken off. Section and key ignore the case of A to Z;
/// the first section of the name and the first key in it win. Lines that begin with ';' are
/// comments; a UTF-8 byte order mark in front of the file is passed over. Nothing where section or
/// key is missing.
std::optional<std::string_view> FindProfileValue(std::string_view file, std::string_view section,
                                                 std::string_view key);

struct ProfileEntry {
    std::string section;
    std::string key;
};

/// Every key of every section, in the order of the file.
std::vector<ProfileEntry> ListProfileEntries(std::string_view file);

}  // namespace horavex
