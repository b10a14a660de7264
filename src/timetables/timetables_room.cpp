#include "timetables/timetables_room.h"

#include "timetables/export_command.h"
#include "timetables/month_window.h"
#include "timetables/times_window.h"
#include "windows/frm_main.h"

namespace horavex {

void BindTimetablesRoom() {
    BindTimesWindow();
    BindMonthWindow();
    frmMain->mnuPrayerTimes.onClick = ShowTimesWindow;
    frmMain->mnuExport.onClick = mnuExport_Click;
    frmMain->mnuPopExport.onClick = mnuExport_Click;
}

}  // namespace horavex
