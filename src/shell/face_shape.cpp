#include "shell/face_shape.h"

#include "base/program_state.h"
#include "platform/platform.h"
#include "store/face_options.h"
#include "store/save_change.h"
#include "windows/frm_main.h"

namespace horavex {

namespace {

/// What the user sees, whether it could be stored or not.
struct Choices {
    bool small = false;
    bool fillsScreen = false;
    bool above = false;
};
Choices chosen;

const ProgramStateReset reset([] { chosen = {}; });

bool IsStored(const WholeOption& option) {
    return ReadOption(option) != 0;
}

void CheckEntries() {
    for (MenuItem* entry : {&frmMain->mnuSmall, &frmMain->mnuPopSmall}) {
        entry->SetChecked(chosen.small);
    }
    for (MenuItem* entry : {&frmMain->mnuFullScreen, &frmMain->mnuPopFullScreen}) {
        entry->SetChecked(chosen.fillsScreen);
    }
    for (MenuItem* entry : {&frmMain->mnuAbove, &frmMain->mnuPopAbove}) {
        entry->SetChecked(chosen.above);
    }
}

/// A face that fills the screen has the other one beneath it.
bool StandsAbove() {
    return chosen.above && !chosen.fillsScreen;
}

void Take(const Choices& choices) {
    const bool stoodAbove = StandsAbove();
    chosen = choices;
    Ports().face.TakeShape({chosen.small, chosen.fillsScreen});
    CheckEntries();
    if (StandsAbove() != stoodAbove) {
        Ports().windows.SetTopMost(frmMain->Name(), StandsAbove());
    }
}

/// Turns a choice over, and stores it where that can be done.
void Turn(bool Choices::*choice, const WholeOption& option) {
    Choices choices = chosen;
    choices.*choice = !(choices.*choice);
    Take(choices);
    SaveChange(option, chosen.*choice ? 1 : 0, 0);
}

}  // namespace

void ShowFaceShape() {
    Take({IsStored(option::kFaceSmall), IsStored(option::kFaceFullScreen),
          IsStored(option::kFaceAbove)});
}

void TurnFaceSmall() {
    Turn(&Choices::small, option::kFaceSmall);
}

void TurnFaceFullScreen() {
    Turn(&Choices::fillsScreen, option::kFaceFullScreen);
}

void TurnFaceAbove() {
    Turn(&Choices::above, option::kFaceAbove);
}

void LeaveFullScreen() {
    if (chosen.fillsScreen) {
        TurnFaceFullScreen();
    }
}

void BringFullScreenUp() {
    if (chosen.fillsScreen) {
        Ports().face.TakeShape({chosen.small, true});
    }
}

void BindFaceShape() {
    frmMain->mnuSmall.onClick = frmMain->mnuPopSmall.onClick = TurnFaceSmall;
    frmMain->mnuFullScreen.onClick = frmMain->mnuPopFullScreen.onClick = TurnFaceFullScreen;
    frmMain->mnuAbove.onClick = frmMain->mnuPopAbove.onClick = TurnFaceAbove;
}

}  // namespace horavex
