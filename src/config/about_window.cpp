#include "config/about_window.h"

#include "base/program_version.h"
#include "config/system_info.h"
#include "forms/inks.h"
#include "lang/form_language.h"
#include "windows/frm_about.h"
#include "windows/frm_main.h"

namespace horavex {

namespace {

FilledCircleStep Disc(Point centre, double radius, const Colour& colour) {
    return {centre, radius, colour, {colour}};
}

/// The program's emblem, as the notification area has it: a crescent and a star on a dark disc.
void DrawEmblem(Picture& picture) {
    picture.drawing = {
        Disc({600, 600}, 590, ink::kEmblemLight), Disc({600, 600}, 540, ink::kEmblemSky),
        Disc({552, 600}, 396, ink::kEmblemLight), Disc({684, 540}, 324, ink::kEmblemSky),
        Disc({768, 552}, 90, ink::kEmblemLight),
    };
}

// The pack comes first: what it gives to the title and the caption is written over.
void frmAbout_Load() {
    TranslateOnLoad(*frmAbout);
    frmAbout->lblVersion.SetCaption(FullVersionText());
    frmAbout->SetCaption(std::string("About ") + kProgramTitle);
    frmAbout->lblTitle.SetCaption(kProgramTitle);
    DrawEmblem(frmAbout->picIcon);
}

}  // namespace

void ShowAboutWindow() {
    frmAbout->ShowModal(&*frmMain);
}

void BindAboutWindow() {
    frmAbout->onLoad = frmAbout_Load;
    frmAbout->cmdOK.onClick = [] { frmAbout->Unload(); };
    frmAbout->cmdSysInfo.onClick = StartSysInfo;
}

}  // namespace horavex
