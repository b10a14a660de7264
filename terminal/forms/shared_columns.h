#pragma once

#include <cstddef>
#include <vector>

namespace horavex {

inline constexpr int kColumnGap = 2;  // columns between neighbours

/// The gaps between so many neighbours.
inline int GapsBetween(std::size_t count) {
    return count == 0 ? 0 : kColumnGap * (static_cast<int>(count) - 1);
}

/// Shares columns out: all that is wanted where there is room, and something between the least and
/// the wanted where there is less. What is left goes to those that are marked, if any are.
std::vector<int> SharedColumns(const std::vector<int>& least, const std::vector<int>& wanted,
                               const std::vector<bool>& takesRest, int width);

}  // namespace horavex
