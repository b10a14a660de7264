#include "shell/menus.h"

#include "athan/athan_watch.h"
#include "lang/language_pack.h"
#include "platform/platform.h"
#include "shell/tray_icon.h"
#include "store/stored_values.h"
#include "windows/frm_main.h"

namespace horavex {

void PopUp(const MenuItem& menu, int x, int y) {
    Ports().windows.PopUpMenu(frmMain->Name(), menu.Name(), x, y);
}

void PopUpAtPointer(const MenuItem& menu) {
    Ports().windows.PopUpMenuAtPointer(frmMain->Name(), menu.Name());
}

void mnuExit_Click() {
    SaveStoredLanguage(currentLanguage);
    TrayRemove();
    LeaveSession();
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
    frmMain->mnuExit.onClick = mnuExit_Click;
    frmMain->mnuPopExit.onClick = mnuExit_Click;
    frmMain->mnuPopShow.onClick = mnuPopShow_Click;
    // mnuPopEmailUS, mnuPopAthan and mnuPopMoonPhases do nothing.
}

}  // namespace horavex
