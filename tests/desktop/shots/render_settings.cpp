// Renders the settings window, the adjustments, athan and reminders, the wizard's pages and the
// city picker of the whole program into PNG files, to be looked at by the people who draw them:
//
//     QT_QPA_PLATFORM=offscreen QT_SCALE_FACTOR=2 render_settings FOLDER [dark]
//
// The folder HORAVEX_TEST_BINARY_DIR is where the program was built.
#include <QApplication>
#include <QTabWidget>

#include "config/automatic_zone.h"
#include "config/settings_controls.h"
#include "config/settings_display.h"
#include "config/settings_window.h"
#include "config/wizard.h"
#include "desktop/face/qt_face.h"
#include "desktop/form_window/form_windows.h"
#include "desktop/shots/dark_palette.h"
#include "geo/city_picker.h"
#include "lang/language_pack.h"
#include "shell/wiring.h"
#include "store/city_search.h"
#include "store/location_files.h"
#include "store/location_record.h"
#include "store/settings_files.h"
#include "store/settings_record.h"
#include "support/program_copy.h"
#include "support/test_platform.h"
#include "windows/f_country.h"
#include "windows/frm_adjust.h"
#include "windows/frm_athan.h"
#include "windows/frm_main.h"
#include "windows/frm_reminders.h"
#include "windows/frm_wizard.h"
#include "windows/horavex_main_form.h"
#include "windows/new_coordinates.h"

namespace {

using namespace horavex;

struct Language {
    const char* pack;
    std::int16_t column;
};

/// The program in one language, from its start.
class Rendering {
public:
    Rendering(QString folder, const Language& language)
        : folder_(std::move(folder)), name_(language.pack) {
        CopyBuiltProgramFolder(platform_.files);
        LoadActiveSettings();
        ActiveSettings.Language = language.column;
        SaveActiveSettings();
        Settings = ActiveSettings;
        SaveWorkingSettings();
        platform_.zoneRules.Add("Asia/Riyadh", {3 * 3600, false});
        BindWindows();
        platform_.registry.CreateKey("Software\\Horavex\\Settings");
        platform_.registry.SetValue("Software\\Horavex\\Settings", "Language", language.pack);
        frmMain->Load();
        frmMain->SetVisible(false);
    }

    void All() {
        RenderSettings();
        RenderPicker();
        RenderWizard();
        RenderAdjustments();
        RenderReminders();
        NewCoordinates->Show();
        Save(*NewCoordinates, "coordinates");
    }

private:
    void Save(const Form& form, const QString& what) {
        QApplication::processEvents();
        FormWindow* window = windows_.Find(&form);
        window->Flush();
        QApplication::processEvents();
        const auto scale = QString::number(window->devicePixelRatioF());
        const QSize size = window->size();
        const QSize least = window->minimumSizeHint();
        qInfo("%s %s: %d x %d, at least %d x %d", qPrintable(name_), qPrintable(what), size.width(),
              size.height(), least.width(), least.height());
        window->grab().save(folder_ + "/" + what + "-" + name_.toLower() + "-" + scale + "x.png");
    }

    void RenderSettings() {
        ShowSettingsWindow();
        HoravexMainForm->chkDayLT.SetValue(1);
        ShowAutomaticZone(true);
        ShowNewLocation();
        QApplication::processEvents();
        auto* pages = windows_.Find(&*HoravexMainForm)->findChild<QTabWidget*>();
        for (int page = 0; page < pages->count(); ++page) {
            pages->setCurrentIndex(page);
            Save(*HoravexMainForm, "settings" + QString::number(page + 1));
        }
    }

    void RenderPicker() {
        LoadCityPicker();
        fCountry->Show();
        Save(*fCountry, "picker");
        fCountry->txtSearch.UserType("san");
        Save(*fCountry, "search");
        fCountry->Unload();
    }

    void RenderWizard() {
        ShowWizard();
        frmWizard->label5.SetVisible(true);
        frmWizard->lblPicked.SetVisible(true);
        frmWizard->lblPickedCity.SetCaption("Alexandria, Alexandria - Egypt");
        frmWizard->lblPickedCity.SetVisible(true);
        for (int page = 1; page <= 4; ++page) {
            Save(*frmWizard, "wizard" + QString::number(page));
            if (page < 4) {
                frmWizard->cmdNext.UserClick();
            }
        }
    }

    /// In Mecca, and in a summer night of the north by a rule.
    void RenderAdjustments() {
        frmAdjust->Show();
        Save(*frmAdjust, "adjustments");
        frmAdjust->Unload();
        platform_.clock.Set(DateSerial(2026, 6, 21) + 0.5);
        ActiveSettings.TimeZone = 2.0;
        ActiveSettings.CityIndex = SearchCities(ListCities(), "oslo").at(0).city->cityIndex;
        ActiveCityText = LookupLocation(ActiveSettings.CityIndex, ActiveLocation);
        frmAdjust->Show();
        frmAdjust->cboRule.UserSelect(2);
        frmAdjust->cboMethod.UserSelect(1);
        frmAdjust->hsOffset(5).UserSlide(5);
        Save(*frmAdjust, "adjustments-oslo");
    }

    /// As nothing is chosen, and with much chosen and no device for the sound.
    void RenderReminders() {
        frmAthan->Show();
        Save(*frmAthan, "athan");
        frmAthan->Unload();
        ActiveSettings.AthanType = kSoundAthan;
        platform_.audioPlayer.devices = {{"speakers", "Built-in Audio Analog Stereo"}};
        frmReminders->Show();
        Save(*frmReminders, "reminders");
        frmReminders->Unload();
        ActiveSettings.AthanType = 0;
        frmReminders->Show();
        platform_.dialogs.chosenFile = "/home/user/Music/A muezzin of Cairo, 1952.ogg";
        platform_.audioPlayer.hasDevice = false;
        ChooseMuch(*frmReminders);
        Save(*frmReminders, "reminders-chosen");
        frmReminders->Unload();
    }

    static void ChooseMuch(RemindersForm& form) {
        form.cboSound(kFajr).UserSelect(6);
        form.hsVolume(kFajr).UserSlide(40);
        form.chkAthan(kZuhr).UserClick();
        form.cboSound(kIsha).UserSelect(8);
        form.hsReminder(kShurooq).UserSlide(30);
        form.hsIqama(kMaghrib).UserSlide(10);
        form.hsFade.UserSlide(45);
        form.hsSilent.UserSlide(120);
        form.chkQuiet.UserClick();
        form.cboShow.UserSelect(2);
        form.cmdTestTone.UserClick();
    }

    static Layouts AllLayouts(QtFace& face) {
        Layouts layouts = DrawnLayouts();
        layouts["frmMain"] = [&face](QWidget& window) { face.Fill(window); };
        return layouts;
    }

    QString folder_;
    QString name_;
    TestPlatform platform_;
    QtFace face_;
    FormWindows windows_{AllLayouts(face_)};
};

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    if (argc > 2) {
        QApplication::setPalette(DarkPalette());
    }
    for (const Language& language :
         {Language{"English", 1}, Language{"French", 2}, Language{"German", 3},
          Language{"Arabic", 4}, Language{"Spanish", 5}, Language{"Indonesian", 1},
          Language{"Bengali", 1}}) {
        Rendering(QString::fromLocal8Bit(argv[1]), language).All();
    }
    return 0;
}
