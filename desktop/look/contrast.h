#pragma once

#include <QColor>

namespace horavex::look {

/// Of two opaque colours, from 1 to 21, as the Web Content Accessibility Guidelines define it.
double Contrast(const QColor& one, const QColor& other);

/// What is seen where one colour lies over an opaque one.
QColor Over(const QColor& above, const QColor& below);

}  // namespace horavex::look
