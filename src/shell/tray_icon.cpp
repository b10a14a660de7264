#include "shell/tray_icon.h"

#include "athan/quiet.h"
#include "base/program_state.h"
#include "base/program_version.h"
#include "lang/language_pack.h"
#include "platform/platform.h"
#include "shell/menus.h"
#include "windows/frm_main.h"

namespace horavex {

namespace {

std::string shownTip;

const ProgramStateReset reset([] { shownTip.clear(); });

void OpenTrayMenu() {
    Ports().windows.SetForeground(frmMain->Name());
    PopUpAtPointer(frmMain->mnuPopup);
}

}  // namespace

void BringFaceBack() {
    frmMain->Show();
    frmMain->SetWindowState(WindowState::kNormal);
    Ports().windows.Activate(frmMain->Name());
    if (!frmMain->Visible()) {
        frmMain->SetWindowState(WindowState::kNormal);
    }
}

void TrayAdd() {
    shownTip = kProgramTitle;
    Ports().tray.Add(kProgramTitle);
}

void TrayRemove() {
    Ports().tray.Remove();
}

void TraySetTip(const std::string& text) {
    shownTip = text;
    Ports().tray.SetTip(text);
}

std::string PrayerTip() {
    const std::string next = frmMain->Label1.Caption() + frmMain->lblNextAthan.Caption();
    const std::string remaining = frmMain->Label3.Caption() + frmMain->lblRemaining.Caption();
    return IsArabicPack() ? remaining + next : next + " " + remaining;
}

std::string TrayTip() {
    const std::string quiet = QuietText();
    return quiet.empty() ? PrayerTip() : PrayerTip() + "\n" + quiet;
}

void RefreshTrayTip() {
    const std::string tip = TrayTip();
    if (tip != shownTip) {
        TraySetTip(tip);
    }
}

void traypic_MouseMove(TrayMessage message) {
    TraySetTip(TrayTip());
    switch (message) {
        case TrayMessage::kLeftDoubleClick:
            BringFaceBack();
            break;
        case TrayMessage::kRightUp:
            OpenTrayMenu();
            break;
        case TrayMessage::kMove:
        case TrayMessage::kLeftDown:
        case TrayMessage::kRightDown:
            break;
    }
}

}  // namespace horavex
