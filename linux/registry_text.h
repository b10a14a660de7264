#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace horavex {

/// The text of a registry file. One section a key, one line a value, "@" for the key's default
/// value; blanks around names and values do not count:
///
///     [\\Software\\Horavex\\Settings]
///     Language=Arabic
///     @=text of the default value
///
/// In keys, names and values \\ is a backslash, \n and \r are line ends, \s and \t blanks at an
/// end; in names \= \@ \[ \# \; are those characters; a backslash before anything else stands
/// for itself. Lines that begin with '#' or ';' are comments. Damaged lines (no UTF-8, no '=',
/// outside a section) do not count; they and comments stay where they are when the text changes.
/// A damaged section line hides the lines up to the next section. Of two lines for one value the
/// first counts. Keys and names ignore letter case (A to Z).
class RegistryText {
public:
    explicit RegistryText(std::string_view text);

    /// The whole text, each line ended.
    std::string Text() const;

    bool HasKey(std::string_view key) const;
    std::optional<std::string> Value(std::string_view key, std::string_view valueName) const;

    /// Adds an empty section; one that is there stays. All texts given here and below are UTF-8.
    void AddKey(std::string_view key);

    /// Adds the section too where it is missing.
    void Set(std::string_view key, std::string_view valueName, std::string_view value);

    /// False when there is nothing to erase. A section goes with all its lines.
    bool EraseValue(std::string_view key, std::string_view valueName);
    bool EraseKey(std::string_view key);

private:
    /// The key of a section, kept once for all its lines; nothing outside a section.
    using Section = std::shared_ptr<const std::string>;

    struct Line {
        std::string text;                  // as it stands in the file
        Section section;                   // that the line is in
        std::string name;                  // of a value
        std::optional<std::string> value;  // nothing for every other line

        bool IsIn(std::string_view key) const;
        bool IsValue(std::string_view key, std::string_view valueName) const;
    };

    static Line Parse(std::string_view text, Section section);
    void Append(std::string_view text);

    std::vector<Line> lines_;
};

}  // namespace horavex
