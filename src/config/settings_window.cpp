#include "config/settings_window.h"

#include "base/int16.h"
#include "config/city_choice.h"
#include "config/commit.h"
#include "config/help.h"
#include "config/new_coordinates_window.h"
#include "config/settings_controls.h"
#include "config/settings_display.h"
#include "config/startup_entry.h"
#include "engine/current_year.h"
#include "geo/city_picker.h"
#include "store/location_files.h"
#include "store/location_record.h"
#include "store/settings_record.h"
#include "store/stored_values.h"
#include "windows/frm_main.h"
#include "windows/horavex_main_form.h"

namespace horavex {

namespace {

/// The close box throws all edits away. The load takes the year of now: one that has come since the
/// last tick would pass for calculated.
void DiscardEdits() {
    const std::int16_t calculated = CurrentYear;
    HoravexMainForm->Hide();
    EndCityChoice();
    frmMain->lblCity.SetCaption(ActiveCityText);
    Settings_Form_Load();
    LoadQiblaLabels();
    ReloadIshaAngle();
    sub0651();
    if (CurrentYear != calculated) {
        RefreshAcceptedYear();
    }
}

void HoravexMainForm_QueryUnload(CloseRequest& request) {
    CloseHelp();
    if (request.reason == CloseReason::kUser || request.reason == CloseReason::kCode) {
        request.cancel = true;
        if (!CommitIsRunning()) {
            DiscardEdits();
        }
    }
}

void HoravexMainForm_Resize() {
    if (HoravexMainForm->State() == WindowState::kMinimized) {
        HoravexMainForm->Hide();
    }
}

}  // namespace

// While a commit runs the working values are not those that the window is about to edit.
void OpenSettings() {
    if (CommitIsRunning()) {
        return;
    }
    if (!HoravexMainForm->Visible()) {
        ShowWorkingValues();
    }
    ShowSettingsWindow();
}

void ShowSettingsWindow() {
    CancelLoad = kFalse;
    HoravexMainForm->SetWindowState(WindowState::kNormal);
    HoravexMainForm->Show(&*frmMain);
}

void EnableDependentSettings() {
    HoravexMainForm->cmdQibla.SetEnabled(ActiveSettings.CityIndex != kMeccaCityIndex);
    HoravexMainForm->cmdAthan.SetEnabled(ActiveSettings.AthanType == kSoundAthan);
}

void BindSettingsWindow() {
    BindSettingsControls();
    BindCityChoice();
    BindNewCoordinates();
    HoravexMainForm->SettingsSet.onClick = SettingsSet_Click;
    HoravexMainForm->chkAddToStartup.onClick = chkAddToStartup_Click;
    HoravexMainForm->onCloseRequest = HoravexMainForm_QueryUnload;
    HoravexMainForm->onResize = HoravexMainForm_Resize;
}

}  // namespace horavex
