#include "skywindows/skywindows_room.h"

#include "skywindows/sky_window.h"

namespace horavex {

void BindSkyWindowsRoom() {
    BindSkyWindow();
}

}  // namespace horavex
