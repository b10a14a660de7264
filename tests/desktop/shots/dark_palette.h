#pragma once

#include <QPalette>

namespace horavex {

/// Light texts on dark ground, as a desktop at night has them.
inline QPalette DarkPalette() {
    QPalette palette(QColor(45, 48, 53));
    palette.setColor(QPalette::Base, QColor(30, 32, 36));
    palette.setColor(QPalette::AlternateBase, QColor(52, 56, 62));
    palette.setColor(QPalette::Highlight, QColor(42, 118, 188));
    return palette;
}

}  // namespace horavex
