#include "config/settings_controls.h"

#include "base/fault.h"
#include "base/int16.h"
#include "base/rounding.h"
#include "base/text.h"
#include "config/angle_controls.h"
#include "config/angle_range.h"
#include "config/automatic_zone.h"
#include "config/computer_zone.h"
#include "config/settings_display.h"
#include "config/wizard_preview.h"
#include "config/working_options.h"
#include "config/zone_box.h"
#include "engine/current_year.h"
#include "geo/city_picker.h"
#include "platform/platform.h"
#include "store/angle_band.h"
#include "store/location_files.h"
#include "store/location_record.h"
#include "store/location_text.h"
#include "store/options.h"
#include "store/settings_defaults.h"
#include "store/settings_files.h"
#include "store/settings_record.h"
#include "store/text_table.h"
#include "windows/frm_wizard.h"
#include "windows/horavex_main_form.h"

namespace horavex {

namespace {

/// Options that a record names but the window does not have stay unselected.
void Select(const ControlArray<OptionButton>& options, int index) {
    if (options.Contains(index)) {
        options(index).SetValue(true);
    }
}

/// Moving the sliders writes their clipped values; the remembered angles come back last.
void ShowAngles(double fajrAngle, double ishaAngle) {
    SettingsForm& form = *HoravexMainForm;
    MoveSliders(fajrAngle, form.hsDepr, form.hsDepr1);
    MoveSliders(ishaAngle, form.hsDepr2, form.hsDepr21);
    Settings.FajrAngle = fajrAngle;
    IshaAngle = ishaAngle;
    sub06FB();
}

void ShowAlarmAndDaylight() {
    SettingsForm& form = *HoravexMainForm;
    form.chkDayLT.SetValue(Settings.DstEnabled);
    form.chkAlarm.SetValue(Settings.AlarmEnabled);
    form.hsAlarm.SetValue(Settings.AlarmTime);
    ShowDaylightDays();
    sub0690();
    sub06C6();
    sub071C();
    sub0602();
    sub05CD();
}

/// Showing the language is no choice of the user's: the window keeps its help topic.
void ShowLanguage() {
    SettingsForm& form = *HoravexMainForm;
    const int topic = form.HelpContextId();
    if (Settings.Language >= 1 && Settings.Language <= form.lstLanguage.ListCount()) {
        form.lstLanguage.SetListIndex(Settings.Language - 1);
    }
    form.SetHelpContextId(topic);
}

void ShowSettings(double fajrAngle, double ishaAngle) {
    const ZoneHold hold;
    SettingsForm& form = *HoravexMainForm;
    Select(form.optAsrRatio, NearestInt(Settings.AsrRatio));
    Select(form.optAthanType, Settings.AthanType);
    Select(form.optQiblaMethod, Settings.QiblaMethod);
    ShowAngles(fajrAngle, ishaAngle);
    ShowAlarmAndDaylight();
    ShowLanguage();
    FollowCity();
}

void hsDepr_Change() {
    const SettingsForm& form = *HoravexMainForm;
    Settings.FajrAngle = AngleOnSliders(form.hsDepr, form.hsDepr1);
    sub06FB();
}

void hsDepr2_Change() {
    const SettingsForm& form = *HoravexMainForm;
    IshaAngle = AngleOnSliders(form.hsDepr2, form.hsDepr21);
    sub06FB();
}

void hsBegin_Change() {
    Settings.DstStart = ToInt16(HoravexMainForm->hsBegin.Value() + 1);
    sub06C6();
    ZoneWasEdited();
}

void hsEnd_Change() {
    Settings.DstEnd = ToInt16(HoravexMainForm->hsEnd.Value() + 1);
    sub071C();
    ZoneWasEdited();
}

void hsAlarm_Change() {
    Settings.AlarmTime = ToInt16(HoravexMainForm->hsAlarm.Value());
    sub0690();
}

void chkDayLT_Click() {
    Settings.DstEnabled = ToInt16(HoravexMainForm->chkDayLT.Value());
    sub0602();
    ZoneWasEdited();
}

void chkAlarm_Click() {
    Settings.AlarmEnabled = ToInt16(HoravexMainForm->chkAlarm.Value());
    sub05CD();
}

void lstLanguage_Click() {
    Settings.Language = ToInt16(HoravexMainForm->lstLanguage.ListIndex() + 1);
    TranslateSettingsWindow(Settings.Language);
    sub06FB();
    ShowAutomaticZone(AutomaticZoneIsOn());
    HoravexMainForm->SetHelpContextId(Settings.Language * 1000 + 200);
}

void txtTimeZone_Change() {
    if (!Trim(HoravexMainForm->txtTimeZone.Text()).empty()) {
        HoravexMainForm->SettingsSet.SetEnabled(true);
    }
    ZoneWasEdited();
}

void txtTimeZone_GotFocus() {
    HoravexMainForm->lastTimeZoneText = HoravexMainForm->txtTimeZone.Text();
}

void txtTimeZone_KeyUp() {
    GuardZone(HoravexMainForm->txtTimeZone, HoravexMainForm->lastTimeZoneText);
}

void cmdDefault_Click() {
    ApplyDefaultSettings(Ports().clock.Today());
    HoravexMainForm->txtTimeZone.SetText(std::to_string(ZoneNearest));
    ZoneWasEdited();
    sub0651();
}

/// Another city in a record comes with its place: an index beside the place of another city would
/// be accepted as it stands. Its zone comes with it. One that no file knows gives way to the
/// accepted one.
void LookUpWorkingPlace() {
    if (FindLocation(Settings.CityIndex, Location, CityText)) {
        ShowTimeZone();
    } else {
        Settings.CityIndex = ActiveSettings.CityIndex;
    }
}

/// The stored record as far as it can be used: no text comes in a language that there is not.
void TakeStoredSettings() {
    LoadWorkingSettings();
    if (!IsTextLanguage(Settings.Language)) {
        Settings.Language = ActiveSettings.Language;
    }
    if (Settings.CityIndex != ActiveSettings.CityIndex) {
        LookUpWorkingPlace();
    }
}

/// Ranges of the angle controls of a window, and the labels of their limits.
template <class Window>
void LimitAngles(Window& form) {
    const AngleLimits range = AngleRange();
    for (ScrollBar* bar : {&form.hsDepr, &form.hsDepr2}) {
        bar->SetMin(range.smallest);
        bar->SetMax(range.largest);
    }
    for (Label* label : {&form.lblDeprMin, &form.Label7}) {
        label->SetCaption(std::to_string(range.smallest));
    }
    for (Label* label : {&form.lblDeprMax, &form.Label6}) {
        label->SetCaption(std::to_string(range.largest));
    }
    ListMethods(form, Settings.Language);
}

/// The display follows the thumb while it is dragged.
void BindRange(MovableRange& range, void (*change)()) {
    range.onChange = change;
    range.onScroll = change;
}

/// Each option of an array writes its index.
void BindOptions(ControlArray<OptionButton>& options, void (*write)(std::int16_t index)) {
    options.Bind([write](OptionButton& option) {
        option.onClick = [write, &option] { write(ToInt16(option.Index())); };
    });
}

}  // namespace

void Settings_Form_Load() {
    const ZoneHold hold;
    CancelLoad = kFalse;
    DropChosenOptions();
    CurrentYear = ToInt16(CivilFromDate(Ports().clock.Today()).year);
    LeapYearFlag();
    CopyActiveToWorking();
    HoravexMainForm->lblCity.SetCaption(ActiveCityText);
    ShowTimeZone();
    ShowLocationInWindow();
    LoadQiblaLabels();
    const double ishaAngle = IshaAngle;
    SetDepressionLimits(Location.City.Latitude);
    // The ranges may have clipped the sliders, whose change wrote their values.
    Settings.FajrAngle = ActiveSettings.FajrAngle;
    IshaAngle = ishaAngle;
    LoadSettingsIntoControls();
    ShowAutomaticZone(ReadOption(option::kAutomaticZone) == 1);
}

void SetDepressionLimits(std::int16_t latitude) {
    try {
        LoadAngleBand(latitude);
    } catch (const FileFault&) {
        // Without the file the limits stay as they were.
    }
    const PreviewHold hold;
    LimitAngles(*HoravexMainForm);
    LimitAngles(*frmWizard);
    frmWizard->lblCity.SetCaption(HoravexMainForm->lblCity.Caption());
}

void LoadSettingsIntoControls() {
    const double fajrAngle = Settings.FajrAngle;
    const double ishaAngle = IshaAngle;
    TakeStoredSettings();
    ShowSettings(fajrAngle, ishaAngle);
}

void sub0651() {
    ShowSettings(Settings.FajrAngle, IshaAngle);
}

void ShowWorkingValues() {
    const double fajrAngle = Settings.FajrAngle;
    const double ishaAngle = IshaAngle;
    const bool accepted = Settings.CityIndex == ActiveSettings.CityIndex;
    HoravexMainForm->lblCity.SetCaption(accepted ? ActiveCityText : CityText);
    ShowNewLocation();
    SetDepressionLimits(Location.City.Latitude);
    ShowSettings(fajrAngle, ishaAngle);
}

void BindSettingsControls() {
    SettingsForm& form = *HoravexMainForm;
    BindRange(form.hsDepr, hsDepr_Change);
    BindRange(form.hsDepr1, hsDepr_Change);
    BindRange(form.hsDepr2, hsDepr2_Change);
    BindRange(form.hsDepr21, hsDepr2_Change);
    BindRange(form.hsBegin, hsBegin_Change);
    BindRange(form.hsEnd, hsEnd_Change);
    BindRange(form.hsAlarm, hsAlarm_Change);
    BindOptions(form.optAsrRatio, [](std::int16_t index) { Settings.AsrRatio = index; });
    BindOptions(form.optAthanType, [](std::int16_t index) { Settings.AthanType = index; });
    BindOptions(form.optQiblaMethod, [](std::int16_t index) { Settings.QiblaMethod = index; });
    BindAutomaticZone();
    form.chkDayLT.onClick = chkDayLT_Click;
    form.chkAlarm.onClick = chkAlarm_Click;
    form.lstLanguage.onClick = lstLanguage_Click;
    form.txtTimeZone.onChange = txtTimeZone_Change;
    form.txtTimeZone.onGotFocus = txtTimeZone_GotFocus;
    form.txtTimeZone.onKeyUp = txtTimeZone_KeyUp;
    form.cmdComputerZone.onClick = UseComputerZone;
    form.cboMethod.onClick = [] { cboMethod_Click(*HoravexMainForm); };
    form.cmdDefault.onClick = cmdDefault_Click;
}

}  // namespace horavex
