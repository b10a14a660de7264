#include "moon/moon_room.h"

#include "moon/moon_window.h"
#include "windows/frm_main.h"

namespace horavex {

void BindMoonRoom() {
    frmMain->mnuMoonPhases.onClick = ShowMoonPhases;
}

}  // namespace horavex
