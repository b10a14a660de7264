#include "config/settings_window.h"

#include <string>

#include "base/flag.h"
#include "base/number_text.h"
#include "base/steps.h"
#include "config/city_choice.h"
#include "config/help.h"
#include "config/new_coordinates.h"
#include "config/settings_controls.h"
#include "config/settings_display.h"
#include "config/startup_entry.h"
#include "config/wizard.h"
#include "config/zone_box.h"
#include "engine/angle.h"
#include "engine/day_driver.h"
#include "engine/year_table.h"
#include "geo/qibla.h"
#include "platform/platform.h"
#include "store/cancel_load.h"
#include "store/isha_setting.h"
#include "store/location_files.h"
#include "store/location_record.h"
#include "store/location_text.h"
#include "store/settings_files.h"
#include "store/settings_record.h"
#include "store/text_table.h"
#include "windows/frm_main.h"
#include "windows/frm_wizard.h"
#include "windows/horavex_main_form.h"

namespace horavex {

namespace {

constexpr std::int16_t kSoundAthan = 3;
constexpr double kLastZone = 12.0;  // hours; the wizard stops an hour earlier

std::string Text(std::uint16_t entry) {
    return TextItem(entry, Settings.Language);
}

void RefuseZone() {
    RunStep([] {
        Ports().dialogs.ShowMessage(
            Text(63) + " " + Text(49) + ". " + Text(69) + " " + std::to_string(ZoneNearest), "",
            MessageIcon::kNone);
    });
    HoravexMainForm->txtTimeZone.SetFocus();
}

void AcceptPlace() {
    if (Settings.CityIndex == ActiveSettings.CityIndex) {
        return;
    }
    ActiveCityText = CityText;
    ActiveLocation = Location;
    HoravexMainForm->lblCityBanner.SetCaption(Text(25) + ": " + ActiveCityText);
}

void AcceptLanguage() {
    if (Settings.Language != ActiveSettings.Language) {
        TranslateSettingsWindow(Settings.Language);
        HoravexMainForm->SetHelpContextId(Settings.Language * 1000);
    }
}

void AcceptAthanType() {
    if (Settings.AthanType != ActiveSettings.AthanType) {
        HoravexMainForm->cmdAthan.SetEnabled(Settings.AthanType == kSoundAthan);
    }
}

void EnableQibla() {
    HoravexMainForm->cmdQibla.SetEnabled(Settings.CityIndex != kMeccaCityIndex);
}

/// The calculation still spoke the language of the former settings.
void TellQibla() {
    ComputeQibla();
    frmMain->lblQibla.SetCaption(QiblaText);
}

void Accept() {
    RunStep(AcceptPlace);
    RunStep(AcceptLanguage);
    RunStep(EnableQibla);
    RunStep(AcceptAthanType);
    ActiveSettings = Settings;
    RunStep(TellQibla);
    RunStep(SaveActiveSettings);
}

void Store() {
    RunStep(SaveWorkingSettings);
    RunStep(SaveIshaAngle);
    RunStep(LoadQiblaLabels);
    RunStep(ShowTimeZone);
    frmWizard->lblCity.SetCaption(HoravexMainForm->lblCity.Caption());
}

/// The close box throws all edits away.
void DiscardEdits() {
    HoravexMainForm->Hide();
    Settings_Form_Load();
    LoadQiblaLabels();
    ReloadIshaAngle();
    sub0651();
}

void HoravexMainForm_QueryUnload(CloseRequest& request) {
    CloseHelp();
    if (request.reason == CloseReason::kUser || request.reason == CloseReason::kCode) {
        request.cancel = true;
        DiscardEdits();
    }
}

void HoravexMainForm_Resize() {
    if (HoravexMainForm->State() == WindowState::kMinimized) {
        HoravexMainForm->Hide();
    }
}

}  // namespace

void ShowSettingsWindow() {
    CancelLoad = kFalse;
    HoravexMainForm->SetWindowState(WindowState::kNormal);
    HoravexMainForm->Show(&*frmMain);
}

void SettingsSet_Click() {
    const std::string zone = HoravexMainForm->txtTimeZone.Text();
    if (!IsZone(zone, kLastZone)) {
        RefuseZone();
        return;
    }
    Settings.TimeZone = TextToNumber(zone);
    RunStep(RefreshAll);
    if (CalcFailed != 0) {
        RunStep([] { HoravexMainForm->SetVisible(true); });
    } else {
        Accept();
    }
    Store();
    HoravexMainForm->Hide();
}

void SetSettings() {
    SettingsSet_Click();
}

void EnableDependentSettings() {
    HoravexMainForm->cmdQibla.SetEnabled(ActiveSettings.CityIndex != kMeccaCityIndex);
    HoravexMainForm->cmdAthan.SetEnabled(ActiveSettings.AthanType == kSoundAthan);
}

void BindSettingsWindow() {
    BindSettingsControls();
    BindCityChoice();
    BindNewCoordinates();
    BindWizard();
    HoravexMainForm->SettingsSet.onClick = SettingsSet_Click;
    HoravexMainForm->chkAddToStartup.onClick = chkAddToStartup_Click;
    HoravexMainForm->onCloseRequest = HoravexMainForm_QueryUnload;
    HoravexMainForm->onResize = HoravexMainForm_Resize;
}

}  // namespace horavex
