#pragma once

#include <xcb/xcb.h>

#include <optional>

namespace horavex {

/// The window that the user works in, if it fills the screen. The window manager tells both.
std::optional<xcb_window_t> FullScreenWindow(xcb_connection_t* display);

}  // namespace horavex
