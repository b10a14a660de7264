#include <QTabWidget>

#include "config/settings_window.h"
#include "config/wizard.h"
#include "desktop/shots/scenes.h"
#include "geo/city_picker.h"
#include "windows/f_country.h"
#include "windows/frm_adjust.h"
#include "windows/frm_main.h"
#include "windows/frm_wizard.h"
#include "windows/horavex_main_form.h"
#include "windows/new_coordinates.h"

namespace horavex {

namespace {

constexpr int kSettingsPages = 4;
constexpr int kWizardPages = 4;

Scene SettingsPage(int page) {
    return {
        "settings-" + std::to_string(page + 1), [=](Stage& stage) {
            stage.Visit(OpenSettings, *HoravexMainForm, [&] {
                stage.WindowOf(*HoravexMainForm).findChild<QTabWidget*>()->setCurrentIndex(page);
                stage.Look(*HoravexMainForm);
            });
        }};
}

Scene WizardPage(int page) {
    return {"wizard-" + std::to_string(page + 1), [=](Stage& stage) {
                stage.ports.whereabouts.canLocate = true;
                stage.Visit(ShowWizard, *frmWizard, [&] {
                    for (int i = 0; i < page; ++i) {
                        frmWizard->cmdNext.UserClick();
                    }
                    stage.Look(*frmWizard);
                });
            }};
}

/// The picker with the cities that a typed text finds.
Scene PickerScene(const char* name, const char* text) {
    return {name, [=](Stage& stage) {
                const auto open = [] {
                    LoadCityPicker();
                    fCountry->Show();
                };
                stage.Visit(open, *fCountry, [&] {
                    fCountry->txtSearch.UserType(text);
                    stage.Look(*fCountry);
                });
            }};
}

void LookAtCoordinates(Stage& stage) {
    stage.Visit([] { NewCoordinates->Show(); }, *NewCoordinates);
}

void OpenAdjustmentsByMenu() {
    frmMain->mnuAdjustments.UserClick();
}

void LookAtAdjustments(Stage& stage) {
    stage.Visit(OpenAdjustmentsByMenu, *frmAdjust);
}

/// An authority, a rule and an offset in a summer night of the north.
void LookAtAdjustmentsOfNorth(Stage& stage) {
    stage.Visit(OpenAdjustmentsByMenu, *frmAdjust, [&] {
        frmAdjust->cboMethod.UserSelect(1);
        frmAdjust->cboRule.UserSelect(2);
        frmAdjust->hsOffset(5).UserSlide(5);
        stage.Look(*frmAdjust);
    });
}

}  // namespace

std::vector<Scene> SettingsScenes() {
    std::vector<Scene> scenes;
    for (int page = 0; page < kSettingsPages; ++page) {
        scenes.push_back(SettingsPage(page));
    }
    for (int page = 0; page < kWizardPages; ++page) {
        scenes.push_back(WizardPage(page));
    }
    scenes.push_back(PickerScene("picker", ""));
    scenes.push_back(PickerScene("picker-found", "san"));
    scenes.push_back(PickerScene("picker-nothing", "qqqq"));
    scenes.push_back({"coordinates", LookAtCoordinates});
    scenes.push_back({"adjustments", LookAtAdjustments});
    scenes.push_back({"adjustments-north",
                      LookAtAdjustmentsOfNorth,
                      {.now = DateSerial(2026, 6, 21) + TimeSerial(12, 0, 0),
                       .city = "Oslo",
                       .rule = HighLatitudeRule::kSeventh}});
    return scenes;
}

}  // namespace horavex
