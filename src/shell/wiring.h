#pragma once

namespace horavex {

/// Binds the handlers of every room: the long-lived windows, their menus, the clock and the face;
/// and installs what the engine needs of the rooms above it. Once a process, after the ports are
/// installed; loading frmMain then starts the program.
void BindWindows();

}  // namespace horavex
