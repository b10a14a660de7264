#include "calendar/calendar_room.h"

#include "calendar/date_conversion_window.h"
#include "windows/frm_main.h"

namespace horavex {

void BindCalendarRoom() {
    frmMain->mnuDateConversion.onClick = ShowDateConversion;
}

}  // namespace horavex
