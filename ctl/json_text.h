#pragma once

#include <string>

#include "ctl/command.h"

namespace horavex {

// JSON that is too long to be built as a tree of values before it is written.

/// The text of an object or an array as the commands print it, without the line's end. Bytes that
/// are no UTF-8, as words of the user and names of files may hold, come out as U+FFFD.
std::string TextOf(const Json& json);

/// Appends a number as such a tree writes it: the shortest text that reads back to it, ".0" behind
/// a whole one. Finite.
void AppendJsonNumber(std::string& text, double value);

/// The text of an object that takes the longest of its members as text.
class ObjectText {
public:
    /// Begins with the members of an object, of which there are some.
    explicit ObjectText(const Json& members);

    /// Adds members of an object, of which there are some.
    void Add(const Json& members);

    /// Adds one member. json: the text of its value.
    void Add(const std::string& name, const std::string& json);

    std::string Text() const { return text_ + "}"; }

private:
    std::string text_;
};

}  // namespace horavex
