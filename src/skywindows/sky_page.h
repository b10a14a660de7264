#pragma once

#include <set>
#include <string>
#include <vector>

#include "forms/grid.h"

namespace horavex {

/// What a page of the sky's window says.
struct SkyPage {
    std::vector<std::string> heads;
    std::vector<Grid::Row> rows;
    std::string note;                 // lines below the table
    std::set<std::size_t> figures{};  // as of Grid
};

}  // namespace horavex
