#include "shell/menus.h"

#include "athan/athan_alert.h"
#include "base/flag.h"
#include "config/settings_window.h"
#include "forms/modal_loop.h"
#include "lang/language_menu.h"
#include "lang/language_pack.h"
#include "platform/platform.h"
#include "shell/tray_icon.h"
#include "store/language_setting.h"
#include "timetables/export_command.h"
#include "timetables/times_window.h"
#include "update/connection_probes.h"
#include "update/web_server.h"
#include "windows/frm_main.h"

namespace horavex {

namespace {

void OpenIt(const std::string& target) {
    Ports().shell.OpenAddress(target);
}

/// For entries whose windows are still to come.
void TellThatWindowIsMissing() {
    Ports().dialogs.ShowMessage("This window is not there yet.", "", MessageIcon::kNone);
}

void BindMissingWindows() {
    for (MenuItem* entry :
         {&frmMain->mnuChangeCity, &frmMain->mnuAthanSettings, &frmMain->mnuWizard,
          &frmMain->mnuDateConversion, &frmMain->mnuQibla, &frmMain->mnuDistance,
          &frmMain->mnuMoonPhases, &frmMain->mnuAbout, &frmMain->mnuHelpIndex, &frmMain->mnuUpdate,
          &frmMain->mnuPopQibla, &frmMain->mnuPopHelp}) {
        entry->onClick = TellThatWindowIsMissing;
    }
}

}  // namespace

void PopUp(const MenuItem& menu, int x, int y) {
    const ModalLoop loop;
    Ports().windows.PopUpMenu(frmMain->Name(), menu.Name(), x, y);
}

void PopUpAtPointer(const MenuItem& menu) {
    const ModalLoop loop;
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
    if (IsOnline() == kFalse) {
        Ports().dialogs.ShowMessage(GetConnectionSummary(), "", MessageIcon::kNone);
        return;
    }
    OpenIt(WebServer() + "/");
}

void BindMenus() {
    BindMissingWindows();
    frmMain->mnuThanNow.onClick = [] { sub04F9(-1); };
    frmMain->mnuExport.onClick = mnuExport_Click;
    frmMain->mnuExit.onClick = mnuExit_Click;
    frmMain->mnuPrayerTimes.onClick = ShowTimesWindow;
    frmMain->mnumSettings.onClick = ShowSettingsWindow;
    frmMain->mnuL.Bind(
        [](MenuItem& item) { item.onClick = [&item] { mnuL_Click(item.Index()); }; });
    frmMain->mnuPopShow.onClick = mnuPopShow_Click;
    // mnuPopEmailUS, mnuPopAthan and mnuPopMoonPhases do nothing.
    frmMain->mnuPopVisitWebSite.onClick = mnuPopVisitWebSite_Click;
    frmMain->mnuPopExport.onClick = mnuExport_Click;
    frmMain->mnuPopExit.onClick = mnuExit_Click;
}

}  // namespace horavex
