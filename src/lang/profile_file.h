#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace horavex {

/// The values of a profile file, to be found by section and key: surrounding blanks dropped and one
/// pair of enclosing quotes taken off. Section and key ignore the case of A to Z; the first section
/// of the name and the first key in it win. Lines that begin with ';' are comments; a UTF-8 byte
/// order mark in front of the file is passed over.
class ProfileIndex {
public:
    ProfileIndex() = default;

    /// Of the text of a file, which must outlive it and what it finds.
    explicit ProfileIndex(std::string_view file);

    /// Nothing where section or key is missing.
    std::optional<std::string_view> Find(std::string_view section, std::string_view key) const;

private:
    struct Value {
        std::string_view section;
        std::string_view key;
        std::string_view value;
    };

    static bool ComesFirst(const Value& a, const Value& b);

    std::vector<Value> values_;  // in the order of ComesFirst, then of the file
};

/// The one value of a file that is not asked for more.
std::optional<std::string_view> FindProfileValue(std::string_view file, std::string_view section,
                                                 std::string_view key);

struct ProfileEntry {
    std::string section;
    std::string key;
};

/// Every key of every section, in the order of the file.
std::vector<ProfileEntry> ListProfileEntries(std::string_view file);

}  // namespace horavex
