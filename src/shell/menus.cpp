#include "shell/menus.h"

#include "athan/athan_alert.h"
#include "config/settings_window.h"
#include "forms/modal_loop.h"
#include "lang/language_menu.h"
#include "lang/language_pack.h"
#include "platform/platform.h"
#include "store/language_setting.h"
#include "windows/frm_main.h"

namespace horavex {

void PopUp(const MenuItem& menu, int x, int y) {
    const ModalLoop loop;
    Ports().windows.PopUpMenu(frmMain->Name(), menu.Name(), x, y);
}

void mnuExit_Click() {
    SaveStoredLanguage(currentLanguage);
    Ports().tray.Remove();
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

void BindMenus() {
    frmMain->mnuThanNow.onClick = [] { sub04F9(-1); };
    frmMain->mnuExit.onClick = mnuExit_Click;
    frmMain->mnumSettings.onClick = ShowSettingsWindow;
    frmMain->mnuL.Bind(
        [](MenuItem& item) { item.onClick = [&item] { mnuL_Click(item.Index()); }; });
    frmMain->mnuPopShow.onClick = mnuPopShow_Click;
    frmMain->mnuPopExit.onClick = mnuExit_Click;
}

}  // namespace horavex
