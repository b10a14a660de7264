#pragma once

#include <QPushButton>

namespace horavex {

/// What Enter presses in a window: the button that has the focus, or else the default one; nullptr
/// for none.
QPushButton* ButtonForEnter(const QWidget& window);

/// What Escape presses: the button with the property "cancels"; nullptr for none.
QPushButton* CancelButton(const QWidget& window);

}  // namespace horavex
