#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace horavex {

/// An element of a well-formed XML text, without comments in it. Entities stay as they are.
struct XmlElement {
    std::string tag;
    std::map<std::string, std::string> attributes;
    std::string text;  // of the element itself and of all inside it
    std::vector<XmlElement> children;

    /// The first child with the tag; nullptr for none.
    const XmlElement* Child(std::string_view childTag) const;

    /// An attribute's value, or an empty text.
    std::string Attribute(const std::string& name) const;
};

/// The root of a text. Throws std::invalid_argument for what is no such text.
XmlElement ReadXml(std::string_view xml);

}  // namespace horavex
