#pragma once

#include <QWidget>

namespace horavex::look {

// Sizes of texts, as parts of the one that the desktop gives.
inline constexpr double kSmall = 0.9;
inline constexpr double kHeading = 1.25;
inline constexpr double kLarge = 1.6;

/// Gives a window what its layout asks for by properties of its widgets: "textSize" is the size of
/// a text, "small", "heading" or "large" (all others have the desktop's), and "sign" the name of
/// the icon on a button.
void Dress(const QWidget& window);

}  // namespace horavex::look
