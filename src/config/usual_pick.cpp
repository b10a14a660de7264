#include "config/usual_pick.h"

#include "base/int16.h"
#include "base/rounding.h"
#include "config/angle_controls.h"
#include "config/settings_controls.h"
#include "config/settings_display.h"
#include "config/usual_choices.h"
#include "config/wizard.h"
#include "config/wizard_controls.h"
#include "config/wizard_preview.h"
#include "config/working_options.h"
#include "engine/angle.h"
#include "store/location_record.h"
#include "store/settings_record.h"
#include "store/stored_values.h"
#include "windows/frm_wizard.h"
#include "windows/horavex_main_form.h"

namespace horavex {

namespace {

void TakeUsual(const LocationRecord& place, YearOptions& options) {
    TakeAuthority(UsualAuthority(place.Country), options);
    options.highLatitude = UsualHighLatitudeRule(StoredCoord(place.City.Latitude));
}

/// Isha by an interval leaves its angle as it is.
double IshaAngleOf(const Authority& authority, double former) {
    return authority.ishaInterval > 0 ? former : authority.ishaAngle;
}

bool AcceptedAnglesAreUsual() {
    const Authority& usual = UsualAuthority(ActiveLocation.Country);
    return ActiveSettings.FajrAngle == usual.fajrAngle &&
           ActiveIshaAngle == IshaAngleOf(usual, ActiveIshaAngle);
}

bool AcceptedIsUsual() {
    const YearOptions stored = ReadRuleOptions();
    YearOptions usual = stored;
    TakeUsual(ActiveLocation, usual);
    return stored == usual && AcceptedAnglesAreUsual();
}

template <class Window>
void MoveAngles(Window& form, double fajrAngle, double ishaAngle) {
    MoveSliders(fajrAngle, form.hsDepr, form.hsDepr1);
    MoveSliders(ishaAngle, form.hsDepr2, form.hsDepr21);
}

/// The sliders have quarters of a degree; the method's own angles count.
void TakeAngles(const Authority& authority) {
    const double ishaAngle = IshaAngleOf(authority, IshaAngle);
    MoveAngles(*HoravexMainForm, authority.fajrAngle, ishaAngle);
    MoveAngles(*frmWizard, authority.fajrAngle, ishaAngle);
    Settings.FajrAngle = authority.fajrAngle;
    IshaAngle = ishaAngle;
    sub06FB();
    ShowWizardAngles();
}

/// Where it is left to one's school the accepted ratio stays.
void TakeAsrRatio(const Authority& authority) {
    const double ratio = authority.asrRatio > 0.0 ? authority.asrRatio : ActiveSettings.AsrRatio;
    const int index = NearestInt(ratio);
    for (auto* options : {&HoravexMainForm->optAsrRatio, &frmWizard->optAsrRatio}) {
        if (options->Contains(index)) {
            (*options)(index).SetValue(true);
        }
    }
}

void Propose(bool isFirst) {
    YearOptions options = WorkingRules();
    TakeUsual(Location, options);
    if (isFirst) {
        options.hijri = HijriSource::kUmmAlQura;
        options.sunOfTheDay = true;
    }
    ChooseOptions(options);
    const PreviewHold preview;
    SetDepressionLimits(Location.City.Latitude);
    const Authority& authority = UsualAuthority(Location.Country);
    TakeAngles(authority);
    if (isFirst) {
        TakeAsrRatio(authority);
    }
    if (frmWizard->IsLoaded()) {
        SetTodayPrayerTimes();
    }
}

}  // namespace

bool IsFirstChoice() {
    return firstRun != kFalse && frmWizard->IsLoaded() && !AnythingWasAccepted();
}

void FollowUsualChoices() {
    const bool isFirst = IsFirstChoice();
    if (isFirst || AcceptedIsUsual()) {
        Propose(isFirst);
    }
}

}  // namespace horavex
