#include "skywindows/skywindows_room.h"

#include "skywindows/crescent_window.h"
#include "skywindows/sky_window.h"

namespace horavex {

void BindSkyWindowsRoom() {
    BindSkyWindow();
    BindCrescentWindow();
}

}  // namespace horavex
