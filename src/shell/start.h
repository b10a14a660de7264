#pragma once

namespace horavex {

/// Binds the load of frmMain, which starts the program, that of HoravexMainForm, which is its first
/// half, and the close of the face.
void BindStart();

}  // namespace horavex
