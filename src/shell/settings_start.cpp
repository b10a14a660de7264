#include "shell/settings_start.h"

#include "athan/athan_settings_window.h"
#include "athan/athan_state.h"
#include "athan/sound.h"
#include "base/int16.h"
#include "base/prayers.h"
#include "base/program_state.h"
#include "base/program_version.h"
#include "config/city_clock.h"
#include "config/help.h"
#include "config/settings_controls.h"
#include "config/settings_display.h"
#include "config/settings_window.h"
#include "config/startup_entry.h"
#include "config/wizard.h"
#include "engine/day_driver.h"
#include "engine/year_table.h"
#include "geo/qibla.h"
#include "lang/form_language.h"
#include "platform/platform.h"
#include "shell/tray_icon.h"
#include "store/location_files.h"
#include "store/location_record.h"
#include "store/settings_files.h"
#include "store/settings_record.h"
#include "store/start_options.h"
#include "store/stored_values.h"
#include "store/text_table.h"
#include "update/update_check.h"
#include "windows/f_message.h"
#include "windows/horavex_main_form.h"

namespace horavex {

std::string programFolder;

namespace {

const ProgramStateReset reset([] { programFolder.clear(); });

/// Reads the accepted settings. False for a language that there is not; they speak the first then.
bool LoadStoredSettings() {
    LoadActiveSettings();
    if (IsTextLanguage(ActiveSettings.Language)) {
        return true;
    }
    ActiveSettings.Language = 1;
    return false;
}

/// Looks the accepted place up. False for a city that there is not; it is Mecca then. Without
/// stored settings the index is 0, which is any city or none: that is no damage. Throws FileFault
/// where the location files are missing.
bool LookUpStoredPlace() {
    if (FindLocation(ActiveSettings.CityIndex, ActiveLocation, ActiveCityText)) {
        return true;
    }
    const bool stored = ActiveSettings.Language != 0;
    ActiveSettings.CityIndex = kMeccaCityIndex;
    ActiveCityText = LookupLocation(ActiveSettings.CityIndex, ActiveLocation);
    return !stored;
}

/// Says that the stored settings are damaged and opens the settings window.
void AskForSettings() {
    Ports().dialogs.ShowMessage(TextItem(TextEntry::kDamagedSettings, ActiveSettings.Language), "",
                                MessageIcon::kExclamation);
    ShowSettingsWindow();
}

void RefuseSecondInstance() {
    if (!Ports().instanceGuard.AnotherIsRunning()) {
        return;
    }
    if (ReadOption(option::kShowRunning) == 0 || !Ports().broadcast.ShowRunning()) {
        Ports().dialogs.ShowMessage(TextItem(TextEntry::kAlreadyRunning, ActiveSettings.Language),
                                    kProgramTitle, MessageIcon::kCritical);
    }
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
    KeepAcceptedZone();
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

void LoadIshaAngleAtStart() {
    if (LoadIshaAngle()) {
        Settings.AthanType = kSoundAthan;
        firstRun = kTrue;
    }
}

}  // namespace

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

}  // namespace horavex
