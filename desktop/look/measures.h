#pragma once

namespace horavex::look {

// Of layouts, in pixels. Whatever else a layout asks for lies on the same grid.
inline constexpr int kGrid = 4;
inline constexpr int kSpacing = 8;
inline constexpr int kMargin = 8;
inline constexpr int kWindowMargin = 12;

}  // namespace horavex::look
