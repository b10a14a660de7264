// Renders the windows of the tools menu into PNG files, to be looked at by the people who draw
// them, in the program as it is built:
//
//     QT_QPA_PLATFORM=offscreen render_tools FOLDER LANGUAGE
#include <QApplication>
#include <QTimer>

#include "calendar/date_conversion_window.h"
#include "desktop/form_window/form_windows.h"
#include "engine/day_driver.h"
#include "geo/distance_window.h"
#include "geo/qibla_window.h"
#include "lang/language_pack.h"
#include "moon/moon_window.h"
#include "shell/wiring.h"
#include "skywindows/crescent_window.h"
#include "skywindows/sky_window.h"
#include "store/location_files.h"
#include "store/settings_record.h"
#include "support/program_copy.h"
#include "support/test_platform.h"
#include "windows/f_qibla.h"
#include "windows/frm_crescent.h"
#include "windows/frm_date_convert.h"
#include "windows/frm_distance.h"
#include "windows/frm_main.h"
#include "windows/frm_ramadan.h"
#include "windows/frm_sky.h"
#include "windows/horavex_main_form.h"
#include "windows/moon_phases.h"

namespace {

using namespace horavex;

QString folder;
QString language;

void Save(const FormWindows& windows, const Form& form, const QString& name) {
    QApplication::processEvents();
    QApplication::processEvents();  // lays out what has changed
    windows.Find(&form)->grab().save(folder + "/" + name + "-" + language + ".png");
}

/// Opens a modal window, acts in it, and closes it.
template <class Act>
void Visit(void (*show)(), Form& form, Act act) {
    QTimer::singleShot(0, [&form, act] {
        act();
        form.Unload();
    });
    show();
}

void VisitMoon(const FormWindows& windows) {
    MoonPhasesForm& form = *Moon_Phases;
    Visit(ShowMoonPhases, form, [&] {
        Save(windows, form, "moon-1");
        form.SSTab1.UserSelect(1);
        Save(windows, form, "moon-2");
        form.SSTab1.UserSelect(2);
        form.cmdCalculate.UserClick();
        Save(windows, form, "moon-3");
        form.SSTab1.UserSelect(3);
        form.Cmdeclipse_sun.UserClick();
        Save(windows, form, "moon-4");
        Visit(ShowRamadanHelp, *frmRamadan, [&] { Save(windows, *frmRamadan, "ramadan"); });
    });
}

void VisitSky(const FormWindows& windows) {
    SkyForm& form = *frmSky;
    Visit([] { OpenSky(*frmMain); }, form,
          [&] {
              for (int page = 0; page < form.tabPages.ListCount(); ++page) {
                  form.tabPages.UserSelect(page);
                  Save(windows, form, "sky-" + QString::number(page + 1));
              }
          });
}

void VisitCrescent(const FormWindows& windows) {
    CrescentForm& form = *frmCrescent;
    Visit([] { OpenCrescent(*frmMain); }, form,
          [&] {
              Save(windows, form, "crescent-begins");
              while (form.tmrMap.Running()) {
                  form.tmrMap.Tick();
              }
              Save(windows, form, "crescent");
              form.cboEvening.UserSelect(1);
              form.cboCriterion.UserSelect(1);
              while (form.tmrMap.Running()) {
                  form.tmrMap.Tick();
              }
              Save(windows, form, "crescent-odeh");
          });
}

void VisitDistance(const FormWindows& windows) {
    Visit(ShowDistance, *frmDistance, [&] {
        FillPickedCity(DistanceCity::kA, "Cairo, Cairo - Egypt",
                       "Latitude: 30 degrees, 3 minutes North",
                       "Longitude: 31 degrees, 15 minutes East");
        frmDistance->OptionDistanceToMecca.UserClick();
        frmDistance->optKilometers.UserClick();
        frmDistance->cmdCalcDistance.UserClick();
        Save(windows, *frmDistance, "distance");
    });
}

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    TestPlatform platform;
    folder = QString::fromLocal8Bit(argv[1]);
    language = QString::fromLocal8Bit(argv[2]);
    CopyBuiltProgramFolder(platform.files);
    platform.registry.CreateKey("Software\\Horavex\\Settings");
    BindWindows();
    frmMain->Load();
    currentLanguage = language.toStdString();
    Settings.CityIndex = 1234;
    LookupLocation(Settings.CityIndex, Location);
    RecalculateYear();
    Layouts layouts = DrawnLayouts();
    layouts["frmMain"] = [](QWidget&) {};
    const FormWindows windows(layouts);
    Visit(ShowDateConversion, *frmDateConvert,
          [&] { Save(windows, *frmDateConvert, "date-conversion"); });
    Visit(ShowQibla, *fQibla, [&] { Save(windows, *fQibla, "qibla"); });
    VisitDistance(windows);
    VisitMoon(windows);
    VisitSky(windows);
    VisitCrescent(windows);
    return 0;
}
