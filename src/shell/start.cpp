#include "shell/start.h"

#include "athan/athan_files.h"
#include "athan/athan_settings_window.h"
#include "athan/athan_state.h"
#include "athan/azan_window.h"
#include "athan/message_window.h"
#include "athan/player.h"
#include "base/fault.h"
#include "base/flag.h"
#include "base/prayer_names.h"
#include "base/program_state.h"
#include "base/program_version.h"
#include "config/about_window.h"
#include "config/help.h"
#include "config/settings_controls.h"
#include "config/settings_display.h"
#include "config/settings_window.h"
#include "config/startup_entry.h"
#include "config/wizard.h"
#include "engine/center_on_screen.h"
#include "engine/day_driver.h"
#include "engine/day_state.h"
#include "engine/progress.h"
#include "engine/undefined_angle.h"
#include "engine/year_table.h"
#include "geo/qibla.h"
#include "lang/form_language.h"
#include "lang/language_menu.h"
#include "lang/language_pack.h"
#include "platform/platform.h"
#include "shell/close_face.h"
#include "shell/face_bridge.h"
#include "shell/menus.h"
#include "shell/stored_state.h"
#include "shell/tick.h"
#include "shell/tray_icon.h"
#include "store/isha_setting.h"
#include "store/language_setting.h"
#include "store/location_record.h"
#include "store/settings_files.h"
#include "store/settings_record.h"
#include "store/text_table.h"
#include "timetables/month_window.h"
#include "timetables/times_window.h"
#include "update/update_check.h"
#include "windows/f_message.h"
#include "windows/frm_main.h"
#include "windows/horavex_main_form.h"

namespace horavex {

std::string programFolder;

namespace {

const ProgramStateReset reset([] { programFolder.clear(); });

constexpr double kFaceLeft = -89.0;  // the face's outer margin lies outside the window
constexpr double kFaceTop = -67.0;

/// What the engine reaches above itself.
class ShellDayHost : public DayHost {
public:
    void ReportProgress(double percent) override { horavex::ReportProgress(percent); }
    void ComputeQibla() override { horavex::ComputeQibla(); }
    double QiblaBearing() override { return QiblaDegrees; }
    void RunSetAction() override { SetAcceptedAgain(); }
    void SetFlashVariables() override { horavex::SetFlashVariables(); }
};

void LoadIshaAngleAtStart() {
    if (LoadIshaAngle()) {
        Settings.AthanType = 3;
        firstRun = kTrue;
    }
}

void RefuseSecondInstance() {
    if (!Ports().instanceGuard.AnotherIsRunning()) {
        return;
    }
    Ports().dialogs.ShowMessage(TextItem(54, ActiveSettings.Language), kProgramTitle,
                                MessageIcon::kCritical);
    Ports().eventLoop.EndProcess();
}

void ShowPrayerNames() {
    for (std::size_t prayer = 0; prayer < prayerNames.size(); ++prayer) {
        HoravexMainForm->lblZoritName(static_cast<int>(prayer)).SetCaption(prayerNames[prayer]);
    }
}

/// Stored settings make the year at once; without any the user has to make them first.
void CalculateOrAsk() {
    if (ActiveSettings.Language == 0) {
        ShowSettingsWindow();
        return;
    }
    CopyActiveToWorking();
    RefreshAll();
    HoravexMainForm->SetHelpContextId(ActiveSettings.Language * 1000);
}

void HoravexMainForm_Load() {
    programFolder = "\\";
    InitHelp(HoravexMainForm->Name(), programFolder);
    const bool speaks = LoadStoredSettings();
    RefuseSecondInstance();
    fMessage->Load();
    ShowPrayerNames();
    const bool lies = LookUpStoredPlace();
    EnableDependentSettings();
    if (speaks && lies) {
        CalculateOrAsk();
    } else {
        AskForSettings();
    }
    TranslateSettingsWindow(ActiveSettings.Language);
    if (CalcFailed != 0) {
        ShowSettingsWindow();
    }
    sub0651();
}

void SettingsForm_Load() {
    TranslateOnLoad(*HoravexMainForm);
    ClearUpdateFile();
    LoadStartupWish();
    LoadCustomAthanFiles();
    LoadIshaAngleAtStart();
    KeepStartupEntry();
    HoravexMainForm_Load();
    alarmDismissed = kFalse;
    Settings_Form_Load();
    LoadQiblaLabels();
    if (HoravexMainForm->Visible()) {
        ShowWorkingValues();  // the stored record may hold another city than the window shows
    }
    CheckAthanFiles();
    TrayAdd();
}

void BringFaceUp() {
    Ports().face.Place(kFaceLeft, kFaceTop);
    Ports().face.LoadMovie(0, programFolder + "\\skin\\skin.swf");
}

void FrmMain_Load() {
    LastRefreshDate = Ports().clock.Today();
    NextPrayer = -1;
    Ports().audioFile.SetMode(kSampleBytes);
    HoravexMainForm->Load();
    frmMain->lblCity.SetCaption(ActiveCityText);
    frmMain->tmrUpdate.SetEnabled(true);
    Qibla();
    currentLanguage = ReadStoredLanguage();
    BringFaceUp();
    CenterOnScreen(*frmMain);
    frmMain->Show();
    if (languageMenuBuilt == kFalse) {
        BuildLanguageMenu(currentLanguage);
    }
    TranslateOnLoad(*frmMain);
    if (firstRun != kFalse) {
        ShowWizard();
    }
    // A second line of defence behind the settings window's own test.
    if (Ports().instanceGuard.AnotherIsRunning()) {
        Ports().eventLoop.EndProcess();
    }
}

/// Closing the face only hides it; a session that ends takes it along, with nothing saved.
void FrmMain_QueryUnload(CloseRequest& request) {
    if (request.reason == CloseReason::kUser || request.reason == CloseReason::kCode) {
        request.cancel = true;
        CloseFace();
    }
}

}  // namespace

void BindWindows() {
    static ShellDayHost host;
    InstallDayHost(&host);
    InstallUndefinedAngleReport();
    BindPlayer();
    BindAzanWindow();
    BindMessageWindow();
    BindAthanSettingsWindow();
    BindSettingsWindow();
    BindUpdateCheck();
    BindAboutWindow();
    BindHelp();
    BindTimesWindow();
    BindMonthWindow();
    BindMenus();
    HoravexMainForm->onLoad = SettingsForm_Load;
    frmMain->onLoad = FrmMain_Load;
    frmMain->onCloseRequest = FrmMain_QueryUnload;
    frmMain->tmrUpdate.onTimer = tmrUpdate_Timer;
    Ports().tray.onMessage = traypic_MouseMove;
    Ports().face.onFSCommand = [](const std::string& command, const std::string&) {
        OnFaceCommand(command);
    };
}

}  // namespace horavex
