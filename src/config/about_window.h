#pragma once

namespace horavex {

/// Shows frmAbout, modal over the face.
void ShowAboutWindow();

/// Binds the handlers of frmAbout.
void BindAboutWindow();

}  // namespace horavex
