#include "desktop/ports/full_screen.h"

#include <algorithm>
#include <cstdint>
#include <vector>

#include "desktop/ports/display.h"

namespace horavex {

namespace {

/// The values of a property that is a list of windows or of names; none where it is not there.
std::vector<std::uint32_t> ValuesOf(xcb_connection_t* display, xcb_window_t window,
                                    const char* property, xcb_atom_t type) {
    constexpr std::uint32_t kMost = 64;
    const auto reply = Owned(xcb_get_property_reply(
        display, xcb_get_property(display, 0, window, AtomOf(display, property), type, 0, kMost),
        nullptr));
    if (!reply || reply->format != 32) {
        return {};
    }
    const auto* values = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
    return {values, values + reply->value_len};
}

std::uint32_t ActiveWindow(xcb_connection_t* display) {
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(display)).data->root;
    const auto windows = ValuesOf(display, root, "_NET_ACTIVE_WINDOW", XCB_ATOM_WINDOW);
    return windows.empty() ? xcb_window_t{XCB_WINDOW_NONE} : windows.front();
}

}  // namespace

std::optional<xcb_window_t> FullScreenWindow(xcb_connection_t* display) {
    const xcb_window_t window = ActiveWindow(display);
    const auto states = ValuesOf(display, window, "_NET_WM_STATE", XCB_ATOM_ATOM);
    const xcb_atom_t filling = AtomOf(display, "_NET_WM_STATE_FULLSCREEN");
    const bool fills = std::find(states.begin(), states.end(), filling) != states.end();
    return fills ? std::optional(window) : std::nullopt;
}

}  // namespace horavex
