#pragma once

#include <string>

#include "config/first_run.h"  // firstRun, which the start writes

namespace horavex {

/// The program's folder as the system writes paths: the program folder's own root, with a
/// backslash at its end.
extern std::string programFolder;

/// Binds the handlers of the long-lived windows, their menus, the clock and the face, and
/// installs what the engine needs of the rooms above it. Once a process, after the ports are
/// installed; loading frmMain then starts the program.
void BindWindows();

}  // namespace horavex
