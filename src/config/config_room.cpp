#include "config/config_room.h"

#include "config/about_window.h"
#include "config/adjustments_window.h"
#include "config/city_choice.h"
#include "config/help.h"
#include "config/settings_window.h"
#include "config/wizard.h"
#include "windows/frm_main.h"

namespace horavex {

void BindConfigRoom() {
    BindSettingsWindow();
    BindWizard();
    BindAboutWindow();
    BindAdjustmentsWindow();
    BindHelp();
    frmMain->mnumSettings.onClick = OpenSettings;
    frmMain->mnuChangeCity.onClick = cmdChangeCity_Click;  // shut by its definition
    frmMain->mnuWizard.onClick = ShowWizard;
    frmMain->mnuAbout.onClick = ShowAboutWindow;
}

}  // namespace horavex
