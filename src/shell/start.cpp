#include "shell/start.h"

#include "base/int16.h"
#include "config/automatic_zone.h"
#include "config/wizard.h"
#include "engine/center_on_screen.h"
#include "engine/day_driver.h"
#include "geo/qibla_window.h"
#include "lang/form_language.h"
#include "lang/language_menu.h"
#include "lang/language_pack.h"
#include "lang/own_digits.h"
#include "platform/platform.h"
#include "shell/close_face.h"
#include "shell/face_shape.h"
#include "shell/public_state.h"
#include "shell/settings_start.h"
#include "store/face_options.h"
#include "store/location_record.h"
#include "store/stored_values.h"
#include "windows/frm_main.h"
#include "windows/horavex_main_form.h"

namespace horavex {

namespace {

constexpr double kFaceLeft = -89.0;  // the face's outer margin lies outside the window
constexpr double kFaceTop = -67.0;

void BringFaceUp() {
    Ports().face.Place(kFaceLeft, kFaceTop);
    Ports().face.LoadMovie(0, programFolder + "\\skin\\skin.swf");
}

void FrmMain_Load() {
    LastRefreshDate = Ports().clock.Today();
    NextPrayer = -1;
    Ports().audioFile.SetMode(kSampleBytes);
    HoravexMainForm->Load();
    frmMain->lblCity.SetCaption(ActiveCityText);
    PublishState();
    frmMain->tmrUpdate.SetEnabled(true);
    Qibla();
    currentLanguage = ReadStoredLanguage();
    ShowOwnDigits(ReadOption(option::kOwnDigits) == 1);
    BringFaceUp();
    CenterOnScreen(*frmMain);
    frmMain->Show();
    if (languageMenuBuilt == kFalse) {
        BuildLanguageMenu(currentLanguage);
    }
    TranslateOnLoad(*frmMain);
    ShowFaceShape();
    if (firstRun != kFalse) {
        ShowWizard();
    }
    // A second line of defence behind the settings window's own test.
    if (Ports().instanceGuard.AnotherIsRunning()) {
        Ports().eventLoop.EndProcess();
    }
}

/// Closing the face only hides it; a session that ends takes it along, with nothing saved.
void FrmMain_QueryUnload(CloseRequest& request) {
    if (request.reason == CloseReason::kUser || request.reason == CloseReason::kCode) {
        request.cancel = true;
        CloseFace();
    }
}

}  // namespace

void BindStart() {
    HoravexMainForm->onLoad = SettingsForm_Load;
    frmMain->onLoad = FrmMain_Load;
    frmMain->onCloseRequest = FrmMain_QueryUnload;
}

}  // namespace horavex
