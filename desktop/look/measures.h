#pragma once

namespace horavex::look {

// Of layouts, in pixels. Whatever else a layout asks for lies on the same grid.
inline constexpr int kGrid = 4;
inline constexpr int kSpacing = 8;
inline constexpr int kMargin = 8;
inline constexpr int kWindowMargin = 12;

inline constexpr int kCellMargin = 4;     // of a cell's text, beside the toolkit's one pixel
inline constexpr int kButtonPadding = 8;  // of both sides together, beside the toolkit's own

}  // namespace horavex::look
