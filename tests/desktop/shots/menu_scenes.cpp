#include <QAbstractButton>

#include "desktop/ports/qt_dialogs.h"
#include "desktop/shots/scenes.h"
#include "lang/language_pack.h"
#include "shell/menus.h"
#include "windows/frm_main.h"

namespace horavex {

namespace {

constexpr int kLanguageEntry = 4;  // of the menu "Settings"

Scene MenuScene(const char* name, const char* command, std::optional<int> entry = {}) {
    return {name, [=](Stage& stage) {
                auto* heading = stage.WindowOf(*frmMain).findChild<QAbstractButton*>(command);
                stage.VisitMenu([=] { heading->click(); }, entry);
            }};
}

void LookAtMenuOfIcon(Stage& stage) {
    frmMain->SetVisible(false);
    stage.VisitMenu([] { PopUpAtPointer(frmMain->mnuPopup); });
}

/// The text of a message by its key in the packs.
Scene MessageScene(const char* name, const char* key, MessageIcon icon) {
    return {name, [=](Stage& stage) {
                const std::string title = GetLangString("msg", "12", "");
                stage.VisitDialog([&] {
                    QtDialogs([] {}).ShowMessage(GetLangString("msg", key, ""), title, icon);
                });
            }};
}

}  // namespace

std::vector<Scene> MenuScenes() {
    return {
        MenuScene("menu-athan", "IDC_FS_azan"),
        MenuScene("menu-settings", "IDC_FS_settings"),
        MenuScene("menu-languages", "IDC_FS_settings", kLanguageEntry),
        MenuScene("menu-tools", "IDC_FS_tools"),
        MenuScene("menu-help", "IDC_FS_help"),
        {"menu-icon", LookAtMenuOfIcon},
        MessageScene("message-information", "22", MessageIcon::kInformation),
        MessageScene("message-warning", "16", MessageIcon::kExclamation),
        MessageScene("message-critical", "21", MessageIcon::kCritical),
    };
}

}  // namespace horavex
