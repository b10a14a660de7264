#include "shell/close_face.h"

#include "base/program_state.h"
#include "lang/language_pack.h"
#include "platform/platform.h"
#include "windows/frm_main.h"

namespace horavex {

namespace {

bool wasTold = false;

const ProgramStateReset reset([] { wasTold = false; });

void TellOnce() {
    if (wasTold) {
        return;
    }
    wasTold = true;
    Ports().dialogs.ShowMessage(
        GetLangString("desktop", "NoTray",
                      "This desktop has no notification area, so Horavex stays in the window list. "
                      "To quit, choose \"Exit\" in the menu \"Athan\"."),
        "", MessageIcon::kInformation);
}

}  // namespace

void CloseFace() {
    if (Ports().tray.HasHost()) {
        frmMain->Hide();
        return;
    }
    TellOnce();
    frmMain->SetWindowState(WindowState::kMinimized);
}

void BringHiddenFaceIntoWindowList() {
    if (!frmMain->Visible()) {
        frmMain->SetWindowState(WindowState::kMinimized);
        frmMain->Show();
    }
}

}  // namespace horavex
