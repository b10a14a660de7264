#include "desktop/ports/display.h"

#include <QGuiApplication>

namespace horavex {

// The platform without a screen knows of displays and has none.
xcb_connection_t* Display() {
    const auto* x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 == nullptr ? nullptr : x11->connection();
}

bool PlacesAreKnown() {
    return !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

xcb_atom_t AtomOf(xcb_connection_t* display, std::string_view name) {
    const auto length = static_cast<std::uint16_t>(name.size());
    const auto atom = Owned(
        xcb_intern_atom_reply(display, xcb_intern_atom(display, 0, length, name.data()), nullptr));
    return atom ? atom->atom : xcb_atom_t{XCB_ATOM_NONE};
}

}  // namespace horavex
