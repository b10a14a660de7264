#pragma once

namespace horavex {

// Whether the face is small, fills the screen and stays above other windows: options of the user,
// each turned over by an entry of the face's menu and of the icon's.

/// Brings the face into the shape that is stored.
void ShowFaceShape();

void TurnFaceSmall();
void TurnFaceFullScreen();
void TurnFaceAbove();

/// A face that fills the screen does so no more, as by its own ways out of that.
void LeaveFullScreen();

/// A face that fills the screen comes to the front of whatever lies over it.
void BringFullScreenUp();

/// Binds the entries.
void BindFaceShape();

}  // namespace horavex
