#pragma once

#include <QWidget>

namespace horavex {

/// Gives the buttons of each row one width, that of the longest word among them; where the window
/// has not the room, those that stand together without a space between.
void EvenButtonRows(const QWidget& window);

}  // namespace horavex
