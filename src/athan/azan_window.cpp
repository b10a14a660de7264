#include "athan/azan_window.h"

#include <string>

#include "athan/athan_state.h"
#include "athan/player.h"
#include "athan/sound.h"
#include "base/fault.h"
#include "base/int16.h"
#include "lang/language_pack.h"
#include "platform/platform.h"
#include "store/location_record.h"
#include "windows/frm_azan.h"

namespace horavex {

namespace {

// Twips.
constexpr double kStep = 40.0;     // upward, at each tick
constexpr double kHidden = 400.0;  // of the window, that stay below the screen

void PlaceBelowScreen() {
    const ScreenCorner corner = Ports().windows.WorkArea();
    frmAzan->SetTop(corner.bottom);
    frmAzan->SetLeft(corner.right - frmAzan->Width());
}

void frmAzan_Load() {
    Ports().athanFace.LoadMovie(0, FullPath("Azan.swf"));
    PlaceBelowScreen();
    athanActive = kFalse;
}

void Timer1_Timer() {
    const double bottom = Ports().windows.WorkArea().bottom;
    if (bottom <= frmAzan->Top() + frmAzan->Height() - kHidden) {
        frmAzan->SetTop(frmAzan->Top() - kStep);
    } else {
        frmAzan->Timer1.SetEnabled(false);
        Ports().windows.SetTopMost(frmAzan->Name(), true);
    }
}

void OnCommand(const std::string& command, const std::string&) {
    if (command == "IDC_FS_Stop") {
        StopAthan();
    }
}

/// A user who closes the window stops the athan; without that no other would ever come.
void frmAzan_QueryUnload(CloseRequest& request) {
    if (request.reason == CloseReason::kUser) {
        request.cancel = true;
        StopAthan();
    }
}

/// Where and when, below the text. Each keeps the direction of its own script.
std::string PlaceAndTime() {
    const auto isolated = [](const std::string& text) { return "\u2068" + text + "\u2069"; };
    return isolated(ActiveLocation.City.Name) + "  ·  " +
           isolated(Ports().formats.MediumTime(Ports().clock.Now()));
}

}  // namespace

void SetAzanText() {
    const Alert alert = frmAzan->prayerIndex;
    const std::string text =
        alert == Alert::kAthanNow
            ? ""
            : GetLangString("Azan", std::to_string(static_cast<std::int16_t>(alert)), "");
    Ports().athanFace.SetVariable("_root.character_textField", text);
}

void ShowMe() {
    athanActive = kTrue;
    RunStep([] { frmAzan->SetVisible(true); });
    RunStep(PlaceBelowScreen);
    frmAzan->Timer1.SetEnabled(true);
    Ports().athanFace.Play();
}

void StopAthan() {
    athanActive = kFalse;
    frmAzan->Timer1.SetEnabled(false);
    frmAzan->SetTop(-Ports().windows.WorkArea().bottom);
    Ports().windows.SetTopMost(frmAzan->Name(), false);
    StopPlay();
}

void BringAthanWindowUp(Alert alert) {
    frmAzan->Load();
    frmAzan->prayerIndex = alert;
    if (alert != Alert::kAthanNow) {
        SetAzanText();
    }
    Ports().athanFace.SetVariable("_root.place_textField", PlaceAndTime());
    ShowMe();
}

void BindAzanWindow() {
    frmAzan->onLoad = frmAzan_Load;
    frmAzan->onUnload = StopSound;
    frmAzan->onCloseRequest = frmAzan_QueryUnload;
    frmAzan->Timer1.onTimer = Timer1_Timer;
    Ports().athanFace.onFSCommand = OnCommand;
}

}  // namespace horavex
