#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace horavex {

/// How the parts of a form lie beside and below each other, as its layout file has it, without any
/// measure: a tree whose leaves bear the names of controls.
struct LayoutNode {
    enum class Kind {
        kWidget,   // a control or what stands for none; with children a frame around them
        kRows,     // children below each other
        kColumns,  // children beside each other
        kGrid,
        kPages,  // children behind tabs, one on view
        kSpace,  // takes what is left between its neighbours
    };

    Kind kind = Kind::kWidget;
    std::string name;   // "lblTime_3" for a member of an array
    std::string shape;  // of a widget, the class of its layout file: "QTextEdit"
    std::map<std::string, std::string> properties;
    std::vector<LayoutNode> children;

    // In a grid.
    int row = 0;
    int column = 0;
    int rowSpan = 1;
    int columnSpan = 1;
    std::vector<int> columnStretch;  // of a grid itself

    /// A property's value, or an empty text.
    std::string Property(const std::string& property) const;
    bool Is(const std::string& flag) const { return Property(flag) == "true"; }
};

/// Reads a layout file. Throws std::invalid_argument for what is none.
LayoutNode ReadLayout(std::string_view file);

/// The layout file of a form; empty for a form that has none.
std::string_view LayoutFileOf(std::string_view form);

}  // namespace horavex
