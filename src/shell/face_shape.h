#pragma once

namespace horavex {

// Whether the face is small, fills the screen and stays above other windows: options of the user,
// each turned over by an entry of the face's menu and of the icon's.

/// Brings the face into the shape that is stored.
void ShowFaceShape();

void TurnFaceSmall();
void TurnFaceFullScreen();
void TurnFaceAbove();

/// Binds the entries.
void BindFaceShape();

}  // namespace horavex
