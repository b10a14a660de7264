#include "config/about_window.h"
#include "config/help.h"
#include "desktop/ports/help_window.h"
#include "desktop/shots/scenes.h"
#include "support/build_folder.h"
#include "windows/frm_about.h"

namespace horavex {

namespace {

constexpr std::string_view kFolderInMemory = "/program";

/// What the program asks its viewer to show, with the pages where they lie on the disk.
HelpView AskedFor(Stage& stage, int contextNumber) {
    ShowHelpContext(contextNumber);
    HelpView view = stage.ports.shell.help.value();
    for (HelpPage& page : view.pages) {
        page.path = BuiltProgramFolder() + page.path.substr(kFolderInMemory.size());
    }
    return view;
}

Scene HelpScene(const char* name, int contextNumber) {
    return {name, [=](Stage& stage) {
                HelpWindow viewer;
                viewer.Show(AskedFor(stage, contextNumber));
                viewer.resize(820, 620);
                stage.Look({&viewer});
            }};
}

void LookAtAbout(Stage& stage) {
    stage.Visit(ShowAboutWindow, *frmAbout);
}

}  // namespace

std::vector<Scene> HelpScenes() {
    return {
        {"about", LookAtAbout},
        HelpScene("help-index", kHelpIndex),
        HelpScene("help-settings", kHelpSettings),
        HelpScene("help-qibla", kHelpQibla),
        HelpScene("help-conversion", kHelpDateConversion),
    };
}

}  // namespace horavex
