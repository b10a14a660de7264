#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace horavex {

/// A paragraph of a help page.
struct HelpParagraph {
    std::string text;
    bool isHeading = false;

    bool operator==(const HelpParagraph&) const = default;
};

/// What an HTML page says, without its marks: headings, paragraphs, items of lists with a point
/// before them, rows of tables with a line between their cells.
std::vector<HelpParagraph> HelpParagraphs(std::string_view html);

}  // namespace horavex
