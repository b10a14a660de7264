// Renders the windows of timetables into PNG files, to be looked at by the people who draw them:
//
//     QT_QPA_PLATFORM=offscreen QT_SCALE_FACTOR=2 render_timetables FOLDER
#include <QApplication>

#include "base/flag.h"
#include "desktop/form_window/form_windows.h"
#include "engine/current_year.h"
#include "engine/day_driver.h"
#include "geo/qibla.h"
#include "lang/language_pack.h"
#include "store/location_record.h"
#include "store/settings_record.h"
#include "support/program_copy.h"
#include "support/test_platform.h"
#include "timetables/month_window.h"
#include "timetables/times_window.h"
#include "windows/frm_month.h"
#include "windows/frm_times.h"

namespace {

using namespace horavex;

/// Calculates a year without any window.
class SilentHost : public DayHost {
public:
    void ReportProgress(double) override {}
    void ComputeQibla() override { horavex::ComputeQibla(); }
    void RunSetAction() override {}
    void SetFlashVariables() override {}
};

QString folder;

void Save(const FormWindows& windows, const Form& form, const QString& name) {
    QApplication::processEvents();
    QWidget* window = windows.Find(&form);
    const auto scale = QString::number(window->devicePixelRatioF());
    window->grab().save(folder + "/" + name + "-" + scale + "x.png");
}

/// The year of Cairo with a summer of daylight saving, as the windows of timetables show it.
void TakeCairo(TestPlatform& platform, bool arabic) {
    CopyBuiltProgramFolder(platform.files);
    currentLanguage = arabic ? "Arabic" : "English";
    languageFilesPresent = kTrue;
    Location.City.Latitude = 3005;
    Location.City.Longitude = 3125;
    ActiveLocation = Location;
    ActiveCityText = "Cairo - Egypt";
    Settings.TimeZone = 2.0;
    Settings.FajrAngle = 19.5;
    Settings.AsrRatio = 1.0;
    Settings.DstEnabled = 1;
    Settings.DstStart = 115;
    Settings.DstEnd = 302;
    ActiveSettings = Settings;
    IshaAngle = 17.5;
    CurrentYear = 2026;
    RecalculateYear();
}

void RenderTimetables(TestPlatform& platform, const FormWindows& windows, bool arabic) {
    const QString language = arabic ? "arabic" : "english";
    TakeCairo(platform, arabic);
    frmTimes->Load();
    frmTimes->Show();
    Save(windows, *frmTimes, "times-" + language);
    frmMonth->Load();
    frmMonth->Show();
    Save(windows, *frmMonth, "month-" + language);
    frmMonth->grdMonth.UserPage(-1);
    Save(windows, *frmMonth, "month-change-" + language);
    frmMonth->tabPages.UserSelect(1);
    Save(windows, *frmMonth, "year-" + language);
    frmMonth->Unload();
    frmTimes->Unload();
}

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    TestPlatform platform;
    folder = QString::fromLocal8Bit(argv[1]);
    const FormWindows windows(DrawnLayouts());
    SilentHost host;
    InstallDayHost(&host);
    BindTimesWindow();
    BindMonthWindow();
    RenderTimetables(platform, windows, false);
    RenderTimetables(platform, windows, true);
    return 0;
}
