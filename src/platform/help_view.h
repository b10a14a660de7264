#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace horavex {

/// One page of the help.
struct HelpPage {
    std::string title;
    std::string path;  // of its file, an HTML page whose links are relative to it
};

/// Where a help window stands, in 1024ths of the screen.
struct HelpPlace {
    std::int32_t x;
    std::int32_t y;
    std::int32_t width;
    std::int32_t height;
};

/// What a help viewer is to show.
struct HelpView {
    std::string owner;  // name of the form that the viewer belongs to
    HelpPlace place;    // of a viewer that opens
    std::string title;
    std::string contents;  // names of the list of pages and of the two ways through it
    std::string back;
    std::string forward;
    std::vector<HelpPage> pages;  // one at least; the first title tells the direction of the viewer
    std::size_t page;             // the one to open
};

}  // namespace horavex
