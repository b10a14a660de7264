#pragma once

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#include <string_view>

namespace horavex {

/// The X display that the program is on; null where it is on none.
xcb_connection_t* Display();

/// Whether a window knows where it stands, and stands where it is put: Wayland has neither.
bool PlacesAreKnown();

/// The display's number for a name; XCB_ATOM_NONE where it gives none.
xcb_atom_t AtomOf(xcb_connection_t* display, std::string_view name);

/// An answer of the display, which is freed with what is returned.
template <class Reply>
std::unique_ptr<Reply, decltype(&std::free)> Owned(Reply* reply) {
    return {reply, &std::free};
}

}  // namespace horavex
