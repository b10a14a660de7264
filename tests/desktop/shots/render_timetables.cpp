// Renders the windows of timetables into PNG files, to be looked at by the people who draw them:
//
//     QT_QPA_PLATFORM=offscreen QT_SCALE_FACTOR=2 render_timetables FOLDER [dark]
#include <QApplication>
#include <QDialog>
#include <QTimer>

#include "base/int16.h"
#include "desktop/form_window/form_windows.h"
#include "desktop/printing/document_desk.h"
#include "desktop/shots/dark_palette.h"
#include "engine/current_year.h"
#include "engine/day_driver.h"
#include "geo/qibla.h"
#include "lang/language_pack.h"
#include "linux/posix_files.h"
#include "store/around_options.h"
#include "store/location_record.h"
#include "store/settings_record.h"
#include "store/stored_values.h"
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
    double QiblaBearing() override { return QiblaDegrees; }
    YearRules RulesOf(std::int16_t /*year*/) override { return rules; }
    void RunSetAction() override {}
    void SetFlashVariables() override {}

    YearRules rules;
};

QString folder;

void Save(const FormWindows& windows, const Form& form, const QString& name) {
    QApplication::processEvents();
    QWidget* window = windows.Find(&form);
    const auto scale = QString::number(window->devicePixelRatioF());
    window->grab().save(folder + "/" + name + "-" + scale + "x.png");
}

/// The print preview that is open, which closes then.
void SavePreview(const QString& name) {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    dialog->resize(900, 900);
    QApplication::processEvents();
    dialog->grab().save(folder + "/" + name + ".png");
    dialog->reject();
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
    IshaAngle = ActiveIshaAngle = 17.5;
    CurrentYear = 2026;
    RecalculateYear();
}

/// Oslo around midsummer, whose nights a rule divides.
void TakeOslo(TestPlatform& platform, SilentHost& host, HighLatitudeRule rule) {
    platform.clock.Set(DateSerial(2026, 6, 21) + TimeSerial(15, 4, 5));
    Location.City.Latitude = 5991;
    Location.City.Longitude = 1075;
    ActiveLocation = Location;
    ActiveCityText = "Oslo - Norway";
    Settings.TimeZone = 1.0;
    Settings.FajrAngle = 18.0;
    Settings.DstStart = 88;
    Settings.DstEnd = 297;
    ActiveSettings = Settings;
    host.rules.moments.highLatitude = rule;
    host.rules.zoneName = "Europe/Oslo";
    host.rules.moments.zone = {{DateSerial(2025, 12, 30), 1.0, false},
                               {DateSerial(2026, 3, 29) + TimeSerial(1, 0, 0), 2.0, true},
                               {DateSerial(2026, 10, 25) + TimeSerial(1, 0, 0), 1.0, false}};
    RecalculateYear();
}

/// The chart on view as the month window saves it.
void SaveChart(TestPlatform& platform, const QString& name) {
    PosixFiles disk;
    for (const std::string suffix : {".svg", ".png"}) {
        platform.dialogs.savedFile = "/chart" + suffix;
        frmMonth->cmdSave.UserClick();
        disk.WriteWhole((folder + "/" + name).toStdString() + suffix,
                        platform.files.Contents("/chart" + suffix));
    }
}

void RenderWindows(const FormWindows& windows, const QString& name) {
    frmTimes->Load();
    frmTimes->Show();
    frmTimes->cmdToday.UserClick();
    Save(windows, *frmTimes, "times-" + name);
    frmMonth->Load();
    frmMonth->Show();
    Save(windows, *frmMonth, "month-" + name);
}

void RenderAround(const FormWindows& windows, const QString& language) {
    const QString name = "around-" + language;
    SaveOption(option::kAroundTheDay, 1);
    RenderWindows(windows, name);
    QTimer::singleShot(0, [&name] { SavePreview("preview-" + name); });
    frmMonth->cmdPreview.UserClick();
    frmMonth->Unload();
    frmTimes->Unload();
    SaveOption(option::kAroundTheDay, 0);
}

void RenderTimetables(TestPlatform& platform, const FormWindows& windows, bool arabic) {
    const QString language = arabic ? "arabic" : "english";
    TakeCairo(platform, arabic);
    RenderWindows(windows, language);
    frmMonth->grdMonth.UserPage(-1);
    Save(windows, *frmMonth, "month-change-" + language);
    QTimer::singleShot(0, [&language] { SavePreview("preview-" + language); });
    frmMonth->cmdPreview.UserClick();
    frmMonth->tabPages.UserSelect(1);
    Save(windows, *frmMonth, "year-" + language);
    SaveChart(platform, "year-" + language);
    frmMonth->Unload();
    frmTimes->Unload();
    RenderAround(windows, language);
}

void RenderOslo(TestPlatform& platform, const FormWindows& windows, SilentHost& host, bool arabic) {
    const Date now = platform.clock.Now();
    TakeCairo(platform, arabic);
    const std::pair<const char*, HighLatitudeRule> rules[] = {
        {"middle", HighLatitudeRule::kMiddle},
        {"seventh", HighLatitudeRule::kSeventh},
        {"angle", HighLatitudeRule::kAngle},
        {"nearest", HighLatitudeRule::kNearest}};
    for (const auto& [word, rule] : rules) {
        const QString name = QString("oslo-") + word + (arabic ? "-arabic" : "-english");
        TakeOslo(platform, host, rule);
        RenderWindows(windows, name);
        QTimer::singleShot(0, [&name] { SavePreview("preview-" + name); });
        frmMonth->cmdPreview.UserClick();
        frmMonth->Unload();
        frmTimes->Unload();
    }
    host.rules = {};
    platform.clock.Set(now);
}

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    if (argc > 2) {
        QApplication::setPalette(DarkPalette());
    }
    TestPlatform platform;
    folder = QString::fromLocal8Bit(argv[1]);
    const FormWindows windows(DrawnLayouts());
    SilentHost host;
    InstallDayHost(&host);
    BindTimesWindow();
    BindMonthWindow();
    InstallDesktopDocuments();
    RenderTimetables(platform, windows, false);
    RenderTimetables(platform, windows, true);
    RenderOslo(platform, windows, host, false);
    RenderOslo(platform, windows, host, true);
    return 0;
}
