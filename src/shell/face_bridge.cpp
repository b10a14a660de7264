#include "shell/face_bridge.h"

#include "athan/signals.h"
#include "base/number_text.h"
#include "calendar/current_calendar.h"
#include "calendar/date_words.h"
#include "engine/day_driver.h"
#include "engine/year_table.h"
#include "geo/qibla.h"
#include "platform/platform.h"
#include "shell/close_face.h"
#include "shell/face_fast.h"
#include "shell/face_place.h"
#include "shell/face_shape.h"
#include "shell/face_sky.h"
#include "shell/menus.h"
#include "windows/frm_main.h"

namespace horavex {

namespace {

void Set(const char* variable, const std::string& value) {
    Ports().face.SetVariable(variable, value);
}

void SetHijriDate() {
    const HijriTexts hijri = HijriToday();
    Set("_root.iArabicDay", hijri.day);
    Set("_root.ArabicMonth", hijri.monthName);
    Set("_root.iArabicYear", hijri.year);
}

/// One text: for each prayer a blank, its name, a colon and its time.
std::string AllPrayers() {
    std::string text;
    for (int prayer = 0; prayer < static_cast<int>(kPrayerCount); ++prayer) {
        text += " " + frmMain->lblZoritNameArabic(prayer).Caption() + ":" +
                frmMain->lblTime(prayer).Caption();
    }
    return text;
}

void SetPrayers() {
    Set("_root.sNextPrayer", frmMain->Label1.Caption() + " " + frmMain->lblNextAthan.Caption());
    Set("_root.sNextRemaining", frmMain->Label3.Caption() + " " + frmMain->lblRemaining.Caption());
    Set("_root.allPrayerTime.allPrayerTimeText.sAllPrayers", AllPrayers());
    Set("_root.icompassAngle", NumberToText(QiblaDegrees, Ports().formats.DecimalMark()));
}

void SetGregorianDate() {
    const Date now = Ports().clock.Now();
    Set("_root.myDay", Ports().formats.WeekdayName(now));
    Set("_root.myMonth", MonthName(MonthOf(now)));
    Set("_root.myYear", std::to_string(YearOf(now)));
    Set("_root.myNumber", std::to_string(DayOf(now)));
}

constexpr int kMenuTop = 135;  // pixels

struct FaceCommand {
    const char* name;
    void (*action)();
};

constexpr FaceCommand kCommands[] = {
    {"IDC_FS_drag", [] { Ports().windows.StartDrag(frmMain->Name()); }},
    {"IDC_FS_Qibla", [] { frmMain->mnuQibla.UserClick(); }},
    {"IDC_FS_Clock", [] { Ports().shell.OpenDateTimeTool(); }},
    {"IDC_FS_Day", [] { Ports().shell.OpenDateTimeTool(); }},
    {"IDC_FS_place", [] { frmMain->mnumSettings.UserClick(); }},
    {"IDC_FS_azan", [] { PopUp(frmMain->mnuAthan, 50, kMenuTop); }},
    {"IDC_FS_settings", [] { PopUp(frmMain->mnuSettings, 100, kMenuTop); }},
    {"IDC_FS_tools", [] { PopUp(frmMain->mnuTools, 150, kMenuTop); }},
    {"IDC_FS_help", [] { PopUp(frmMain->mnuHelp, 200, kMenuTop); }},
    {"IDC_FS_close", CloseFace},
    {"IDC_FS_minimize", [] { frmMain->SetWindowState(WindowState::kMinimized); }},
    {"IDC_FS_small", TurnFaceSmall},
    {"IDC_FS_fullScreen", TurnFaceFullScreen},
    {"IDC_FS_allTimes", [] { frmMain->mnuPrayerTimes.UserClick(); }},
};

}  // namespace

void SetFlashVariables() {
    {
        const CalendarScope hijri(kHijriCalendar);
        SetHijriDate();
        SetPrayers();
    }
    const CalendarScope gregorian(kGregorianCalendar);
    SetGregorianDate();
    DayView day = ShownDay;
    day.place = PlaceOfFace();
    day.clocks = ClocksOfFace();
    day.iqama = IqamaAhead(day.now);
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        day.iqamaMinutes[prayer] = IqamaMinutes(static_cast<Prayer>(prayer));
    }
    day.fast = FastOfFace(day);
    day.sky = SkyOfFace(day.now);
    Ports().face.ShowDay(day);
}

void OnFaceCommand(const std::string& command) {
    for (const FaceCommand& known : kCommands) {
        if (command == known.name) {
            known.action();
            return;
        }
    }
}

}  // namespace horavex
