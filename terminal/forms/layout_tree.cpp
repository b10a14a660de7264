#include "terminal/forms/layout_tree.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>

#include "terminal/forms/xml_tree.h"

namespace horavex {

namespace {

using Kind = LayoutNode::Kind;

int NumberOf(const XmlElement& element, const char* attribute, int otherwise) {
    const std::string value = element.Attribute(attribute);
    return value.empty() ? otherwise : std::stoi(value);
}

/// "0,1,1"
std::vector<int> Numbers(const std::string& text) {
    std::vector<int> numbers;
    std::istringstream words(text);
    for (std::string number; std::getline(words, number, ',');) {
        numbers.push_back(std::stoi(number));
    }
    return numbers;
}

std::string Trimmed(const std::string& text) {
    const std::size_t first = text.find_first_not_of(" \n");
    return first == text.npos ? "" : text.substr(first, text.find_last_not_of(" \n") - first + 1);
}

/// A size is two properties: "maximumSize.width" and "maximumSize.height", in pixels.
void ReadProperty(LayoutNode& node, const XmlElement& property) {
    const std::string name = property.Attribute("name");
    const XmlElement* size = property.Child("size");
    if (size == nullptr) {
        node.properties[name] = Trimmed(property.text);
        return;
    }
    for (const XmlElement& extent : size->children) {
        node.properties[name + "." + extent.tag] = Trimmed(extent.text);
    }
}

void ReadProperties(LayoutNode& node, const XmlElement& element) {
    for (const XmlElement& child : element.children) {
        if (child.tag == "property") {
            ReadProperty(node, child);
        }
    }
}

Kind KindOfLayout(const std::string& shape) {
    return shape == "QGridLayout" ? Kind::kGrid
                                  : (shape == "QHBoxLayout" ? Kind::kColumns : Kind::kRows);
}

LayoutNode NodeOf(const XmlElement& element);

LayoutNode ItemOf(const XmlElement& item) {
    LayoutNode node = NodeOf(item.children.at(0));
    node.row = NumberOf(item, "row", 0);
    node.column = NumberOf(item, "column", 0);
    node.rowSpan = NumberOf(item, "rowspan", 1);
    node.columnSpan = NumberOf(item, "colspan", 1);
    return node;
}

LayoutNode LayoutOf(const XmlElement& element) {
    LayoutNode node;
    node.kind = KindOfLayout(element.Attribute("class"));
    node.columnStretch = Numbers(element.Attribute("columnstretch"));
    for (const XmlElement& child : element.children) {
        if (child.tag == "item") {
            node.children.push_back(ItemOf(child));
        }
    }
    return node;
}

LayoutNode WidgetOf(const XmlElement& element) {
    LayoutNode node;
    node.name = element.Attribute("name");
    node.shape = element.Attribute("class");
    node.kind = node.shape == "QTabWidget" ? Kind::kPages : Kind::kWidget;
    ReadProperties(node, element);
    for (const XmlElement& child : element.children) {
        if (child.tag == "widget" || child.tag == "layout") {
            node.children.push_back(NodeOf(child));
        }
    }
    return node;
}

LayoutNode NodeOf(const XmlElement& element) {
    if (element.tag == "widget") {
        return WidgetOf(element);
    }
    if (element.tag == "layout") {
        return LayoutOf(element);
    }
    LayoutNode space;
    space.kind = Kind::kSpace;
    ReadProperties(space, element);
    return space;
}

}  // namespace

std::string LayoutNode::Property(const std::string& property) const {
    const auto found = properties.find(property);
    return found == properties.end() ? std::string() : found->second;
}

LayoutNode ReadLayout(std::string_view file) {
    const XmlElement root = ReadXml(file);
    const XmlElement* window = root.Child("widget");
    if (window == nullptr) {
        throw std::invalid_argument("a layout without a widget");
    }
    return WidgetOf(*window);
}

}  // namespace horavex
