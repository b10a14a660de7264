#pragma once

#include <QWidget>

namespace horavex {

/// Has the keys left and right press the buttons of a window whose property "pressedBy" says "back"
/// or "on": left is back where one reads from the left, and on where one reads from the right.
void BindArrowButtons(QWidget& window);

}  // namespace horavex
