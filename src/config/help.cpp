#include "config/help.h"

#include <array>
#include <cstdint>

#include "base/fault.h"
#include "base/program_state.h"
#include "base/text.h"
#include "config/help_topics.h"
#include "lang/language_pack.h"
#include "platform/platform.h"
#include "windows/frm_athan.h"
#include "windows/frm_crescent.h"
#include "windows/frm_date_convert.h"
#include "windows/frm_main.h"
#include "windows/frm_sky.h"
#include "windows/horavex_main_form.h"

namespace horavex {

namespace {

/// What the help window is told once about itself.
struct HelpWindowRecord {
    std::int32_t size;
    HelpPlace place;
    std::array<char, 2> member;
};

std::string helpOwnerWindow;      // the form that help calls pass as their owner
std::string helpFile;             // path in the program folder
HelpWindowRecord HelpWindowInfo;  // a half of the screen each way, from a quarter of it

const ProgramStateReset reset([] {
    helpOwnerWindow.clear();
    helpFile.clear();
    HelpWindowInfo = {};
});

HelpTopics ReadTopics() {
    return HelpTopics(StringOf(Ports().programFolder.ReadWhole(helpFile, kLargestText)));
}

/// The path of a page in the program folder, of the pack's language or else the English one.
std::string PathOf(const std::string& page) {
    const std::string path = "\\help\\" + currentLanguage + "\\" + page;
    return Ports().programFolder.Exists(path) ? path : "\\help\\English\\" + page;
}

HelpPage PageAt(const std::string& path) {
    const ProgramFolder& folder = Ports().programFolder;
    const std::string title = TitleOfPage(StringOf(folder.ReadWhole(path, kLargestText)));
    if (title.empty()) {
        throw FileFault(path, "the page has no title");
    }
    return {title, folder.RealPath(path)};
}

HelpView NewView() {
    return {.owner = helpOwnerWindow,
            .place = HelpWindowInfo.place,
            .title = GetLangString("desktop", "HelpTitle", "Horavex Help"),
            .contents = GetLangString("desktop", "HelpContents", "Contents"),
            .back = GetLangString("desktop", "HelpBack", "Back"),
            .forward = GetLangString("desktop", "HelpForward", "Forward"),
            .pages = {},
            .page = 0};
}

void mnuHelpIndex_Click() {
    ShowHelpContext(kHelpIndex);
}

}  // namespace

void InitHelp(const std::string& windowHandle, std::string folder) {
    helpOwnerWindow = windowHandle;
    folder = Trim(folder);
    helpFile = folder + (folder.ends_with('\\') ? "" : "\\") + kHelpFileName;
    HelpWindowInfo = {26, {256, 256, 512, 512}, {0, 0}};
}

void ShowHelpContext(int contextNumber) {
    const HelpTopics topics = ReadTopics();
    const std::string wanted = topics.PageOf(contextNumber);
    HelpView view = NewView();
    for (const std::string& page : topics.Pages()) {
        if (page == wanted) {
            view.page = view.pages.size();
        }
        view.pages.push_back(PageAt(PathOf(page)));
    }
    if (view.pages.empty()) {
        throw FileFault(helpFile, "names no page");
    }
    Ports().shell.ShowHelp(view);
}

void CloseHelp() {
    Ports().shell.CloseHelp();
}

void ShowHelpOf(const Form& form) {
    const int own = form.HelpContextId();
    ShowHelpContext(own != 0 ? own : ReadTopics().NumberOf(form.Name()));
}

void BindHelp() {
    InstallHelpKey(ShowHelpOf);
    frmMain->mnuHelpIndex.onClick = mnuHelpIndex_Click;
    frmMain->mnuPopHelp.onClick = mnuHelpIndex_Click;
    frmAthan->AthanSettingHelp.onClick = mnuHelpIndex_Click;
    HoravexMainForm->Help.onClick = mnuHelpIndex_Click;
    HoravexMainForm->SettingsHelp.onClick = [] { ShowHelpContext(kHelpSettings); };
    HoravexMainForm->QiblaHelpButton.onClick = [] { ShowHelpContext(kHelpQibla); };
    frmSky->cmdHelp.onClick = [] { ShowHelpOf(*frmSky); };
    frmCrescent->cmdHelp.onClick = [] { ShowHelpOf(*frmCrescent); };
    frmDateConvert->HijriDateConversionHelp.onClick = [] { ShowHelpContext(kHelpDateConversion); };
}

}  // namespace horavex
