#pragma once

#include <string>

#include "platform/tray.h"

namespace horavex {

/// Puts the icon into the notification area, with the program's title as its tip.
void TrayAdd();

void TrayRemove();

/// Shows the face again, as a double click at the icon does.
void BringFaceBack();

void TraySetTip(const std::string& text);

/// The next prayer and the time that remains, as the tip tells them: the remaining time first and
/// no separating blank in the language "arabic".
std::string TrayTip();

/// Gives the icon the present tip, if it is another one than it has.
void RefreshTrayTip();

/// What the user did at the icon: every message makes the tip fresh, a double click brings the
/// face back, and letting the right button go opens the menu.
void traypic_MouseMove(TrayMessage message);

}  // namespace horavex
