#include "shell/face_shape.h"

#include "platform/platform.h"
#include "store/face_options.h"
#include "store/save_change.h"
#include "windows/frm_main.h"

namespace horavex {

namespace {

bool IsOn(const WholeOption& option) {
    return ReadOption(option) != 0;
}

void CheckEntries() {
    for (MenuItem* entry : {&frmMain->mnuSmall, &frmMain->mnuPopSmall}) {
        entry->SetChecked(IsOn(option::kFaceSmall));
    }
    for (MenuItem* entry : {&frmMain->mnuFullScreen, &frmMain->mnuPopFullScreen}) {
        entry->SetChecked(IsOn(option::kFaceFullScreen));
    }
    for (MenuItem* entry : {&frmMain->mnuAbove, &frmMain->mnuPopAbove}) {
        entry->SetChecked(IsOn(option::kFaceAbove));
    }
}

void TakeShape() {
    Ports().face.TakeShape({IsOn(option::kFaceSmall), IsOn(option::kFaceFullScreen)});
    CheckEntries();
}

void Turn(const WholeOption& option) {
    SaveChange(option, IsOn(option) ? 0 : 1, 0);
    TakeShape();
}

}  // namespace

void ShowFaceShape() {
    TakeShape();
    if (IsOn(option::kFaceAbove)) {
        Ports().windows.SetTopMost(frmMain->Name(), true);
    }
}

void TurnFaceSmall() {
    Turn(option::kFaceSmall);
}

void TurnFaceFullScreen() {
    Turn(option::kFaceFullScreen);
}

void TurnFaceAbove() {
    Turn(option::kFaceAbove);
    Ports().windows.SetTopMost(frmMain->Name(), IsOn(option::kFaceAbove));
}

void BindFaceShape() {
    frmMain->mnuSmall.onClick = frmMain->mnuPopSmall.onClick = TurnFaceSmall;
    frmMain->mnuFullScreen.onClick = frmMain->mnuPopFullScreen.onClick = TurnFaceFullScreen;
    frmMain->mnuAbove.onClick = frmMain->mnuPopAbove.onClick = TurnFaceAbove;
}

}  // namespace horavex
