#include "config/settings_display.h"

#include <initializer_list>
#include <string>
#include <utility>

#include "base/nearest_int.h"
#include "base/number_text.h"
#include "base/text.h"
#include "config/method_list.h"
#include "engine/current_year.h"
#include "geo/qibla.h"
#include "lang/arabic_labels.h"
#include "lang/language_pack.h"
#include "platform/platform.h"
#include "store/location_record.h"
#include "store/location_text.h"
#include "store/settings_record.h"
#include "store/text_table.h"
#include "windows/horavex_main_form.h"

namespace horavex {

namespace {

constexpr double kAlarmStepsPerDay = 288.0;

std::string Text(std::uint16_t entry) {
    return TextItem(entry, Settings.Language);
}

}  // namespace

std::string AngleText(double angle) {
    return Text(16) + " " + NumberToText(angle, Ports().formats.DecimalMark());
}

std::string DayText(std::int16_t day) {
    return Ports().formats.LongDate(DateSerial(CurrentYear, 1, 1) + day - 1);
}

void sub0690() {
    HoravexMainForm->lblAlarm.SetCaption(
        Ports().formats.MediumTime(Settings.AlarmTime / kAlarmStepsPerDay));
}

void sub06C6() {
    HoravexMainForm->lblBegin.SetCaption(DayText(Settings.DstStart));
}

void sub071C() {
    HoravexMainForm->lblEnd.SetCaption(DayText(Settings.DstEnd));
}

void sub06FB() {
    HoravexMainForm->lblDepr.SetCaption(AngleText(Settings.FajrAngle));
    HoravexMainForm->lblDepr1.SetCaption(AngleText(IshaAngle));
    ShowMethod(*HoravexMainForm);
}

void sub0602() {
    SettingsForm& form = *HoravexMainForm;
    const bool enabled = Settings.DstEnabled == 1;
    for (Control* control :
         std::initializer_list<Control*>{&form.hsBegin, &form.lblBeginAt, &form.lblBegin,
                                         &form.hsEnd, &form.lblEndAT, &form.lblEnd}) {
        control->SetEnabled(enabled);
    }
}

void sub05CD() {
    SettingsForm& form = *HoravexMainForm;
    const bool enabled = Settings.AlarmEnabled == 1;
    for (Control* control :
         std::initializer_list<Control*>{&form.hsAlarm, &form.lblAlarmAt, &form.lblAlarm}) {
        control->SetEnabled(enabled);
    }
}

void SetDaylightRange(ScrollBar& bar) {
    const int last = 364 + LeapFlag;
    bar.SetMax(last);
    bar.SetLargeStep(NearestInt(last / 12.0));
}

void ShowDaylightDays() {
    SettingsForm& form = *HoravexMainForm;
    SetDaylightRange(form.hsBegin);
    SetDaylightRange(form.hsEnd);
    form.hsBegin.SetValue(Settings.DstStart - 1);
    form.hsEnd.SetValue(Settings.DstEnd - 1);
}

void ShowLocationInWindow() {
    ShowLocation(Location);
    SettingsForm& form = *HoravexMainForm;
    form.lblLocationLat.SetCaption(LatitudeText);
    form.lblLocationLon.SetCaption(LongitudeText);
    form.lblTimeZone.SetCaption(ZoneHintText);
    form.lblGMT.SetCaption(Text(67));
}

void ShowNewLocation() {
    ShowLocationInWindow();
    if (AsciiLower(currentLanguage) == "arabic") {
        Translate();
    }
}

void TranslateSettingsWindow(std::int16_t language) {
    SettingsForm& form = *HoravexMainForm;
    const std::pair<Control*, std::uint16_t> captions[] = {
        {&form.fraCity, 20},
        {&form.cmdChangeCity, 21},
        {&form.lblGMT, 67},
        {&form.lblFajrAngle, 40},
        {&form.lblIshaAngle, 41},
        {&form.fraAsr, 74},
        {&form.optAsrRatio(1), 43},
        {&form.optAsrRatio(2), 44},
        {&form.fraDayLT, 45},
        {&form.chkDayLT, 45},
        {&form.lblBeginAt, 46},
        {&form.lblEndAT, 48},
        {&form.fraAthan, 52},
        {&form.cmdAthan, 52},
        {&form.optAthanType(1), 56},
        {&form.optAthanType(2), 58},
        {&form.optAthanType(3), 61},
        {&form.fraAlarm, 50},
        {&form.chkAlarm, 50},
        {&form.lblAlarmAt, 51},
        {&form.fraQibla, 68},
        {&form.optQiblaMethod(1), 70},
        {&form.optQiblaMethod(2), 71},
        {&form.cmdQibla, 68},
        {&form.fraLanguage, 24},
        {&form.cmdComputerZone, 78},
        {&form.lblMethod, 79},
        {&form.fraAngles, 90},
        {&form.chkAddToStartup, 66},
        {&form.cmdDefault, 73},
        {&form.SettingsSet, 72},
        {&form.VisitWebSiteLabel, 92},
        {&form.AboutUpdateButton, 93},
        {&form.QiblaHelpButton, 30},
        {&form.SettingsHelp, 94},
        {&form.Help, 95},
        {&form.lblInternetConnect, 96},
    };
    for (const auto& [control, entry] : captions) {
        control->SetCaption(TextItem(entry, language));
    }
    form.lblCityBanner.SetCaption(TextItem(25, language) + ": " + ActiveCityText);
    form.SetCaption("Horavex " + TextItem(19, language));
    ListMethods(*HoravexMainForm, language);
    ShowNewLocation();
}

void LoadQiblaLabels() {
    HoravexMainForm->lblQibla.SetCaption(QiblaText);
}

void ShowTimeZone() {
    HoravexMainForm->txtTimeZone.SetText(
        SignedFixedText(Settings.TimeZone, Ports().formats.DecimalMark()));
}

}  // namespace horavex
