#include "shell/menus.h"

#include "athan/athan_watch.h"
#include "lang/language_pack.h"
#include "platform/platform.h"
#include "shell/tray_icon.h"
#include "store/stored_values.h"
#include "windows/frm_main.h"

namespace horavex {

namespace {

struct EntryHint {
    MenuItem& entry;
    const char* key;  // of the pack's section "desktop"
    const char* english;
};

/// Entries that do nothing say so to whoever points at them, in the language of the moment.
void HintAtWhatIsOff() {
    constexpr const char* kMenus = "Choose this in the menus of the window.";
    FrmMain& form = *frmMain;
    const EntryHint hints[] = {
        {form.mnuChangeCity, "CityInSettings", "Change the city in the settings window."},
        {form.mnuPopAthan, "InWindowMenus", kMenus},
        {form.mnuPopMoonPhases, "InWindowMenus", kMenus},
        {form.mnuPopQibla, "InWindowMenus", kMenus},
        {form.mnuPopEmailUS, "NoMailAddress", "Horavex has no mail address."}};
    for (const auto& [entry, key, english] : hints) {
        entry.SetHint(GetLangString("desktop", key, english));
    }
}

}  // namespace

void PopUp(const MenuItem& menu, int x, int y) {
    HintAtWhatIsOff();
    Ports().windows.PopUpMenu(frmMain->Name(), menu.Name(), x, y);
}

void PopUpAtPointer(const MenuItem& menu) {
    HintAtWhatIsOff();
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
    frmMain->mnuPopFront.onClick = BringFaceBack;
    frmMain->mnuPopShow.onClick = mnuPopShow_Click;
    // mnuPopEmailUS, mnuPopAthan and mnuPopMoonPhases do nothing.
}

}  // namespace horavex
