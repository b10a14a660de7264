#include "shell/menus.h"

#include "athan/athan_alert.h"
#include "calendar/date_conversion_window.h"
#include "config/about_window.h"
#include "config/city_choice.h"
#include "config/help.h"
#include "config/settings_window.h"
#include "config/wizard.h"
#include "geo/distance_window.h"
#include "geo/qibla_window.h"
#include "lang/language_menu.h"
#include "lang/language_pack.h"
#include "moon/moon_window.h"
#include "platform/platform.h"
#include "shell/tray_icon.h"
#include "store/language_setting.h"
#include "timetables/export_command.h"
#include "timetables/times_window.h"
#include "update/open_address.h"
#include "update/update_check.h"
#include "update/web_server.h"
#include "windows/frm_athan.h"
#include "windows/frm_main.h"
#include "windows/horavex_main_form.h"

namespace horavex {

namespace {

void BindTools() {
    frmMain->mnuDateConversion.onClick = ShowDateConversion;
    frmMain->mnuQibla.onClick = ShowQibla;
    frmMain->mnuDistance.onClick = ShowDistance;
    frmMain->mnuMoonPhases.onClick = ShowMoonPhases;
    frmMain->mnuPopQibla.onClick = ShowQibla;
}

void mnuHelpIndex_Click() {
    ShowHelpContext(kHelpIndex);
}

}  // namespace

void PopUp(const MenuItem& menu, int x, int y) {
    Ports().windows.PopUpMenu(frmMain->Name(), menu.Name(), x, y);
}

void PopUpAtPointer(const MenuItem& menu) {
    Ports().windows.PopUpMenuAtPointer(frmMain->Name(), menu.Name());
}

void mnuExit_Click() {
    SaveStoredLanguage(currentLanguage);
    TrayRemove();
    Ports().eventLoop.EndProcess();
}

void mnuPopShow_Click() {
    const bool wasVisible = frmMain->Visible();
    if (!wasVisible) {
        frmMain->SetWindowState(WindowState::kNormal);
    }
    frmMain->SetVisible(!wasVisible);
    frmMain->mnuPopShow.SetChecked(!wasVisible);
}

void mnuPopVisitWebSite_Click() {
    OpenPage(WebServer() + "/");
}

void BindMenus() {
    BindTools();
    frmMain->mnuThanNow.onClick = [] { sub04F9(-1); };
    frmMain->mnuExport.onClick = mnuExport_Click;
    frmMain->mnuExit.onClick = mnuExit_Click;
    frmMain->mnuPrayerTimes.onClick = ShowTimesWindow;
    frmMain->mnumSettings.onClick = OpenSettings;
    frmMain->mnuAthanSettings.onClick = [] { frmAthan->ShowModal(&*frmMain); };
    HoravexMainForm->cmdAthan.onClick = [] { frmAthan->ShowModal(&*HoravexMainForm); };
    HoravexMainForm->cmdQibla.onClick = ShowQibla;
    frmMain->mnuChangeCity.onClick = cmdChangeCity_Click;  // shut by its definition
    frmMain->mnuWizard.onClick = ShowWizard;
    frmMain->mnuL.Bind(
        [](MenuItem& item) { item.onClick = [&item] { mnuL_Click(item.Index()); }; });
    frmMain->mnuAbout.onClick = ShowAboutWindow;
    frmMain->mnuHelpIndex.onClick = mnuHelpIndex_Click;
    frmAthan->AthanSettingHelp.onClick = mnuHelpIndex_Click;
    frmMain->mnuUpdate.onClick = Update;
    frmMain->mnuPopShow.onClick = mnuPopShow_Click;
    // mnuPopEmailUS, mnuPopAthan and mnuPopMoonPhases do nothing.
    frmMain->mnuPopVisitWebSite.onClick = mnuPopVisitWebSite_Click;
    frmMain->mnuPopHelp.onClick = mnuHelpIndex_Click;
    frmMain->mnuPopExport.onClick = mnuExport_Click;
    frmMain->mnuPopExit.onClick = mnuExit_Click;
}

}  // namespace horavex
