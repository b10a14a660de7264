#pragma once

#include "base/prayers.h"

namespace horavex {

/// Hands the text of the window's prayer to its face: that of the language pack, none for an athan
/// that the user asked for.
void SetAzanText();

/// Brings the athan window up, from below the screen, and returns at once. It rises by itself.
void ShowMe();

/// Loads the window for an athan and brings it up. One that the user asks for keeps the text as it
/// stands.
void BringAthanWindowUp(Alert alert);

/// What the button of the face does: the athan is over, its sound stops, and its window goes above
/// the screen.
void StopAthan();

/// Binds the handlers of frmAzan. Its face has one command, to stop: the window then goes above
/// the screen and stays loaded, until a sound has come to its end.
void BindAzanWindow();

}  // namespace horavex
