#pragma once

#include <QWidget>

namespace horavex {

/// The least size at which a window shows all it has: nothing is cut, and nothing scrolls.
QSize WholeSize(QWidget& window);

/// What the desktop draws around a window, in pixels. It is known once the window has been on
/// view; before that it is taken for a broad one.
QMargins FrameAround(const QWidget& window);

/// A window with its frame, given by the place of the frame and the size inside it, put into an
/// area: cut to its size, and moved as little as it takes.
QRect PutInto(const QRect& area, const QRect& window, const QMargins& frame);

}  // namespace horavex
