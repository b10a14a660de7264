#include "shell/wiring.h"

#include "athan/athan_room.h"
#include "calendar/calendar_room.h"
#include "config/commit.h"
#include "config/config_room.h"
#include "config/year_options.h"
#include "engine/day_driver.h"
#include "engine/limit_message.h"
#include "engine/progress_window.h"
#include "geo/geo_room.h"
#include "geo/qibla.h"
#include "lang/language_menu.h"
#include "moon/moon_room.h"
#include "shell/face_bridge.h"
#include "shell/shell_room.h"
#include "skywindows/skywindows_room.h"
#include "timetables/timetables_room.h"
#include "update/update_room.h"

namespace horavex {

namespace {

/// What the engine reaches above itself.
class ShellDayHost : public DayHost {
public:
    void ReportProgress(double percent) override { horavex::ReportProgress(percent); }
    void ComputeQibla() override { horavex::ComputeQibla(); }
    double QiblaBearing() override { return QiblaDegrees; }
    YearRules RulesOf(std::int16_t year) override { return StoredRulesOfYear(year); }
    void RunSetAction() override { SetAcceptedAgain(); }
    void SetFlashVariables() override { horavex::SetFlashVariables(); }
};

void BindRooms() {
    BindLanguageMenu();
    BindCalendarRoom();
    BindGeoRoom();
    BindMoonRoom();
    BindSkyWindowsRoom();
    BindAthanRoom();
    BindTimetablesRoom();
    BindConfigRoom();
    BindUpdateRoom();
    BindShellRoom();
}

}  // namespace

void BindWindows() {
    static ShellDayHost host;
    InstallDayHost(&host);
    InstallUndefinedAngleReport();
    BindRooms();
}

}  // namespace horavex
