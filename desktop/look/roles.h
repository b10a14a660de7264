#pragma once

#include <QColor>
#include <QPalette>

namespace horavex::look {

/// What all windows are dressed in.
enum class Theme { kLight, kDark, kContrast, kLightContrast };

/// What a colour of a window is for.
enum class Role {
    kGround,      // of the window
    kField,       // where one reads or writes: tables, lists, boxes
    kSetOff,      // the ground of rows that differ from the others
    kRaised,      // buttons and tips
    kText,        // on all of these
    kMuted,       // hints in an empty box
    kOff,         // texts of what cannot be used now
    kMarked,      // the ground of what is chosen or present, and the ring of the focus
    kMarkedText,  // on it
    kLink,
    kWarning,  // the signs of messages
    kTrouble,
    kEdge,  // around what can be used
    kCount
};

QColor ColourOf(Theme theme, Role role);

QPalette PaletteOf(Theme theme);

/// The theme that colours are nearest to, be they ours or a desktop's own; whether widgets can be
/// used now does not count. Contrast: nothing but black and white.
Theme ThemeOf(const QPalette& palette);

/// Whether colours are those of a theme; a desktop's own are left to its style.
bool HasOurColours(const QPalette& palette);

/// Light texts on dark ground.
bool IsDark(const QPalette& palette);

}  // namespace horavex::look
