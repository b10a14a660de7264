#include "config/wizard.h"

#include <cmath>
#include <optional>

#include "base/fault.h"
#include "base/int16.h"
#include "base/program_state.h"
#include "base/rounding.h"
#include "config/angle_controls.h"
#include "config/automatic_zone.h"
#include "config/calm_athan.h"
#include "config/commit.h"
#include "config/computer_zone.h"
#include "config/settings_controls.h"
#include "config/settings_display.h"
#include "config/usual_pick.h"
#include "config/wizard_city.h"
#include "config/wizard_controls.h"
#include "config/wizard_place.h"
#include "config/wizard_preview.h"
#include "config/working_options.h"
#include "config/zone_box.h"
#include "engine/center_on_screen.h"
#include "engine/day_driver.h"
#include "geo/city_picker.h"
#include "lang/form_language.h"
#include "lang/language_pack.h"
#include "platform/platform.h"
#include "store/angle_band.h"
#include "store/distance_options.h"
#include "store/location_record.h"
#include "store/save_change.h"
#include "store/settings_record.h"
#include "store/start_options.h"
#include "windows/frm_main.h"
#include "windows/frm_wizard.h"
#include "windows/horavex_main_form.h"

namespace horavex {

std::int16_t firstRun = kFalse;

namespace {

/// What waited before the wizard came up.
struct FormerChoices {
    std::optional<YearOptions> options;
    bool followsCity = false;
};

FormerChoices former;

const ProgramStateReset reset([] {
    firstRun = kFalse;
    former = {};
});

constexpr std::int16_t kZonePage = 2;
constexpr std::int16_t kLastPage = 4;
constexpr double kLastZone = 11.0;  // hours; the settings window takes 12 as well

constexpr int kWizardBegin = 120;  // the wizard's own proposal for daylight saving: 1 May
constexpr int kWizardEnd = 273;    // to 1 October, in a common year

/// The pages lie on each other; those behind are hidden, so that the keyboard does not get lost
/// in them.
void ShowPage(std::int16_t page) {
    WizardForm& form = *frmWizard;
    form.currentPage = page;
    for (int number = 1; number <= kLastPage; ++number) {
        form.Frame(number).SetVisible(number == page);
        form.Frame2(number).SetVisible(number == page);
    }
    form.Frame(page).BringToFront();
    form.Frame2(page).BringToFront();
    form.fraToday.SetVisible(page != kLastPage);
}

void CopyPrayerNames() {
    for (int prayer = 0; prayer < 6; ++prayer) {
        frmWizard->lblZoritName(prayer).SetCaption(frmMain->lblZoritName(prayer).Caption());
    }
}

/// The pack has just written over the limits, which are as those of the settings window.
void CopyLimits() {
    WizardForm& form = *frmWizard;
    const SettingsForm& settings = *HoravexMainForm;
    form.lblDeprMin.SetCaption(settings.lblDeprMin.Caption());
    form.lblDeprMax.SetCaption(settings.lblDeprMax.Caption());
    form.Label7.SetCaption(settings.Label7.Caption());
    form.Label6.SetCaption(settings.Label6.Caption());
}

void SetEgyptianPresets() {
    SetEgyptianPair(*frmWizard);
    frmWizard->txtTimeZone.SetText("+2.00");
}

/// The angle that stood before the sliders were moved to their nearest quarter.
double Unrounded(double before, double now) {
    return std::fabs(before - now) < 0.125 ? before : now;
}

void CopyAnglesAndZone() {
    WizardForm& form = *frmWizard;
    const SettingsForm& settings = *HoravexMainForm;
    const double fajrAngle = Settings.FajrAngle;
    const double ishaAngle = IshaAngle;
    form.hsDepr2.SetValue(settings.hsDepr2.Value());
    form.hsDepr21.SetValue(settings.hsDepr21.Value());
    form.hsDepr.SetValue(settings.hsDepr.Value());
    form.hsDepr1.SetValue(settings.hsDepr1.Value());
    Settings.FajrAngle = Unrounded(fajrAngle, Settings.FajrAngle);
    IshaAngle = Unrounded(ishaAngle, IshaAngle);
    form.txtTimeZone.SetText(settings.txtTimeZone.Text());
}

void ShowAsrRatio() {
    const auto& options = frmWizard->optAsrRatio;
    if (const int ratio = NearestInt(Settings.AsrRatio); options.Contains(ratio)) {
        options(ratio).SetValue(true);
    }
}

void CopyDaylight() {
    frmWizard->chkDayLT.SetValue(HoravexMainForm->chkDayLT.Value());
    ShowWizardDaylight();
}

/// Whatever is stored, the wizard proposes its own days, and they count from now on.
void ProposeDaylightDays() {
    WizardForm& form = *frmWizard;
    SetDaylightRange(form.hsBegin);
    SetDaylightRange(form.hsEnd);
    form.hsBegin.SetValue(kWizardBegin);
    form.hsEnd.SetValue(kWizardEnd);
}

/// While the box is ticked the wizard shows the zone of the city, as any refresh does.
void ShowCityZone() {
    if (AutomaticZoneIsOn()) {
        const ZoneHold zone;
        CopyDaylight();
        ShowCityOnWizard();
    }
}

void StartOnFirstPage() {
    ShowPage(1);
    frmWizard->cmdPrev.SetEnabled(false);
}

void KeepFormerChoices() {
    former = {WaitingOptions(), AutomaticZoneIsOn()};
}

/// A new user's zone follows the city. One who has picked before, or who lives by the clock of the
/// city that stands there, need not press for what is usual.
void ProposeOnFirstRun() {
    if (IsFirstChoice()) {
        ShowAutomaticZone(true);
        if (Settings.CityIndex != ActiveSettings.CityIndex || KeepsComputersZone()) {
            FollowUsualChoices();
        }
    }
}

void frmWizard_Load() {
    const PreviewHold hold;
    const ZoneHold zone;
    ForgetPreview();
    KeepFormerChoices();
    TranslateOnLoad(*frmWizard);
    CopyLimits();
    frmWizard->label5.SetVisible(firstRun != kFalse);
    CopyPrayerNames();
    StartOnFirstPage();
    if (NamesEgypt(HoravexMainForm->lblCity.Caption())) {
        SetEgyptianPresets();
    } else {
        CopyAnglesAndZone();
    }
    ShowAsrRatio();
    CopyDaylight();
    ShowCityOnWizard();
    frmWizard->lblDepr1.SetCaption(HoravexMainForm->lblDepr1.Caption());
    ProposeDaylightDays();
    ProposeOnFirstRun();
    OfferCalmAthan();
    FollowCity();
    ShowCityZone();
    OfferCities();
    CenterOnScreen(*frmWizard);
}

/// The accepted city stays on view until the finish; what was picked meanwhile stands below it.
void ShowPickedCity() {
    const bool picked = Settings.CityIndex != ActiveSettings.CityIndex;
    frmWizard->lblPickedCity.SetCaption(CityText);
    frmWizard->lblPicked.SetVisible(picked);
    frmWizard->lblPickedCity.SetVisible(picked);
}

void CopyAutomaticZone() {
    CheckBox& box = frmWizard->chkAutomaticZone;
    const CheckBox& source = HoravexMainForm->chkAutomaticZone;
    box.SetEnabled(source.Enabled());
    box.SetToolTipText(source.ToolTipText());
    box.SetValue(source.Value());
}

/// The proposals of a wizard that was cancelled are gone; its edits of the working settings stay.
void GiveUpChoices() {
    BringOptionsBack(former.options);
    SetDepressionLimits(Location.City.Latitude);
    ShowAutomaticZone(former.followsCity);
}

void Cancel() {
    GiveUpChoices();
    frmWizard->Unload();
}

void frmWizard_QueryUnload(const CloseRequest& request) {
    if (request.reason == CloseReason::kUser) {
        GiveUpChoices();
    }
}

/// A new user's second start brings the face back, and distances are those from the user's city.
void SaveHelpfulStart() {
    if (AnythingWasAccepted()) {
        SaveChange(option::kShowRunning, 1, option::kShowRunning.base);
        SaveChange(option::kDistanceFromHere, 1, option::kDistanceFromHere.base);
    }
}

void Finish() {
    const bool isFirst = IsFirstChoice();
    RunStep(SetSettings);
    SaveCalmAthan();
    if (isFirst) {
        SaveHelpfulStart();
    }
    frmWizard->Unload();
}

void GoOn() {
    WizardForm& form = *frmWizard;
    ShowPage(AddInt16(form.currentPage, 1));
    if (form.currentPage == kLastPage) {
        form.cmdNext.SetCaption(GetLangString("other", "19", "&Finish"));
    }
    RunStep([] {
        const PreviewHold hold;
        ShowCityOnWizard();
        SetTodayPrayerTimes();
    });
}

void cmdNext_Click() {
    WizardForm& form = *frmWizard;
    form.cmdPrev.SetEnabled(true);
    // A zone beyond the bound of this page is right where it is the city's.
    if (form.currentPage == kZonePage && !AutomaticZoneIsOn()) {
        std::int16_t accepted = kFalse;
        CheckWizardTimeZone(form.txtTimeZone.Text(), accepted);
        if (accepted == kFalse) {
            return;
        }
    }
    if (form.currentPage == kLastPage) {
        Finish();
    } else {
        GoOn();
    }
}

void cmdPrev_Click() {
    frmWizard->cmdNext.SetCaption(GetLangString("other", "20", "&Next"));
    if (frmWizard->currentPage == kZonePage) {
        StartOnFirstPage();
    } else {
        ShowPage(SubtractInt16(frmWizard->currentPage, 1));
    }
}

void chkAutomaticZone_Click() {
    HoravexMainForm->chkAutomaticZone.SetValue(frmWizard->chkAutomaticZone.Value());
    const PreviewHold hold;
    ShowCityZone();
    ShowPlaceOnWizard();
    SetTodayPrayerTimes();
}

/// The settings window's controls are filled; the wizard shows them as any refresh does.
void cmdComputerZone_Click() {
    UseComputerZone();
    const PreviewHold hold;
    CopyDaylight();
    ShowCityOnWizard();
}

}  // namespace

void ShowWizard() {
    if (CommitIsRunning()) {
        return;  // its load writes working values
    }
    if (!frmWizard->IsLoaded()) {
        SetDepressionLimits(Location.City.Latitude);
    }
    frmWizard->Show(&*frmMain);
}

void ShowPickOnWizard() {
    ShowNewLocation();
    RunStep(ShowDay);
    const PreviewHold hold;
    const ZoneHold zone;
    frmWizard->txtTimeZone.SetText(HoravexMainForm->txtTimeZone.Text());
    MoveSliders(Settings.FajrAngle, frmWizard->hsDepr, frmWizard->hsDepr1);
    ShowCityOnWizard();
    ShowCityZone();
}

void ShowCityOnWizard() {
    WizardForm& form = *frmWizard;
    const SettingsForm& settings = *HoravexMainForm;
    const ZoneHold zone;
    form.lblCity.SetCaption(ActiveCityText);
    form.lblCity2.SetCaption(ActiveCityText);
    ShowPickedCity();
    form.lblTimeZone.SetCaption(settings.lblTimeZone.Caption());
    form.txtTimeZone.SetText(settings.txtTimeZone.Text());
    form.lblLocationLat.SetCaption(settings.lblLocationLat.Caption());
    form.lblLocationLon.SetCaption(settings.lblLocationLon.Caption());
    form.hsBegin.SetValue(Settings.DstStart - 1);
    form.hsEnd.SetValue(Settings.DstEnd - 1);
    CopyAutomaticZone();
    ShowWizardAngles();
    ShowPlaceOnWizard();
}

void CheckWizardTimeZone(const std::string& text, std::int16_t& accepted) {
    const auto zone = ZoneIn(text, kLastZone);
    accepted = zone ? kTrue : kFalse;
    if (zone) {
        Settings.TimeZone = *zone;
    } else {
        Ports().dialogs.ShowMessage("Invalid GMT", "", MessageIcon::kExclamation);
    }
}

void BindWizard() {
    BindWizardControls();
    BindWizardCity();
    WizardForm& form = *frmWizard;
    form.onLoad = frmWizard_Load;
    form.onCloseRequest = frmWizard_QueryUnload;
    form.onUnload = StopLocating;
    form.cmdNext.onClick = cmdNext_Click;
    form.cmdPrev.onClick = cmdPrev_Click;
    form.cmdComputerZone.onClick = cmdComputerZone_Click;
    form.chkAutomaticZone.onClick = chkAutomaticZone_Click;
    form.Command3.onClick = Cancel;
}

}  // namespace horavex
