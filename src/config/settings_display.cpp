#include "config/settings_display.h"

#include <initializer_list>
#include <string>
#include <utility>

#include "base/number_text.h"
#include "base/rounding.h"
#include "config/angle_controls.h"
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

std::string Text(TextEntry entry) {
    return TextItem(entry, Settings.Language);
}

}  // namespace

std::string AngleText(double angle) {
    return Text(TextEntry::kDegrees) + " " + NumberToText(angle, Ports().formats.DecimalMark());
}

std::string DayText(std::int16_t day) {
    return Ports().formats.LongDate(DateSerial(CurrentYear, 1, 1) + day - 1);
}

void sub0690() {
    HoravexMainForm->lblAlarm.SetCaption(Ports().formats.MediumTime(AlarmMoment(Settings)));
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
    form.lblGMT.SetCaption(Text(TextEntry::kGmt));
}

void ShowNewLocation() {
    ShowLocationInWindow();
    if (IsArabicPack()) {
        Translate();
    }
}

void TranslateSettingsWindow(std::int16_t language) {
    SettingsForm& form = *HoravexMainForm;
    const std::pair<Control*, TextEntry> captions[] = {
        {&form.fraCity, TextEntry::kLocation},
        {&form.cmdChangeCity, TextEntry::kChangeCity},
        {&form.lblGMT, TextEntry::kGmt},
        {&form.lblFajrAngle, TextEntry::kFajrAngle},
        {&form.lblIshaAngle, TextEntry::kIshaAngle},
        {&form.fraAsr, TextEntry::kAsrRatio},
        {&form.optAsrRatio(1), TextEntry::kShafaiiAsr},
        {&form.optAsrRatio(2), TextEntry::kHanafiAsr},
        {&form.fraDayLT, TextEntry::kDaylightSaving},
        {&form.chkDayLT, TextEntry::kDaylightSaving},
        {&form.lblBeginAt, TextEntry::kBeginsOn},
        {&form.lblEndAT, TextEntry::kEndsOn},
        {&form.fraAthan, TextEntry::kAthan},
        {&form.cmdAthan, TextEntry::kAthan},
        {&form.optAthanType(kMuteAthan), TextEntry::kMute},
        {&form.optAthanType(kBuzzerAthan), TextEntry::kBuzzard},
        {&form.optAthanType(kSoundAthan), TextEntry::kSound},
        {&form.fraAlarm, TextEntry::kAlarm},
        {&form.chkAlarm, TextEntry::kAlarm},
        {&form.lblAlarmAt, TextEntry::kAlarmAt},
        {&form.fraQibla, TextEntry::kQibla},
        {&form.optQiblaMethod(1), TextEntry::kQiblaMethod1},
        {&form.optQiblaMethod(2), TextEntry::kQiblaMethod2},
        {&form.cmdQibla, TextEntry::kQibla},
        {&form.fraLanguage, TextEntry::kLanguage},
        {&form.cmdComputerZone, TextEntry::kComputersZone},
        {&form.chkAutomaticZone, TextEntry::kZoneOfCity},
        {&form.lblMethod, TextEntry::kMethodCaption},
        {&form.fraAngles, TextEntry::kDepressionAngles},
        {&form.cmdAdjustments, TextEntry::kAdjustments},
        {&form.chkAddToStartup, TextEntry::kStartWithSession},
        {&form.cmdDefault, TextEntry::kDefault},
        {&form.SettingsSet, TextEntry::kSet},
        {&form.VisitWebSiteLabel, TextEntry::kCheckForUpdate},
        {&form.AboutUpdateButton, TextEntry::kVisitOurSite},
        {&form.QiblaHelpButton, TextEntry::kHelp},
        {&form.SettingsHelp, TextEntry::kHelpOnSettings},
        {&form.Help, TextEntry::kHelpIndex},
        {&form.lblInternetConnect, TextEntry::kCheckingConnection},
    };
    for (const auto& [control, entry] : captions) {
        control->SetCaption(TextItem(entry, language));
    }
    form.lblCityBanner.SetCaption(TextItem(TextEntry::kCity, language) + ": " + ActiveCityText);
    form.SetCaption(TextItem(TextEntry::kSettingsTitle, language));
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
