#include "lang/pack_keys.h"

#include "base/prayers.h"
#include "lang/form_language.h"
#include "windows/f_country.h"
#include "windows/f_message.h"
#include "windows/f_qibla.h"
#include "windows/frm_about.h"
#include "windows/frm_adjust.h"
#include "windows/frm_athan.h"
#include "windows/frm_crescent.h"
#include "windows/frm_date_convert.h"
#include "windows/frm_distance.h"
#include "windows/frm_main.h"
#include "windows/frm_month.h"
#include "windows/frm_ramadan.h"
#include "windows/frm_reminders.h"
#include "windows/frm_sky.h"
#include "windows/frm_times.h"
#include "windows/frm_wizard.h"
#include "windows/horavex_main_form.h"
#include "windows/moon_phases.h"
#include "windows/new_coordinates.h"

namespace horavex {

namespace {

/// The numbers from first to last as keys.
std::vector<std::string> Numbers(int first, int last) {
    std::vector<std::string> keys;
    for (int number = first; number <= last; ++number) {
        keys.push_back(std::to_string(number));
    }
    return keys;
}

std::vector<std::string> MessageKeys() {
    auto keys = Numbers(1, 24);
    std::erase(keys, "8");  // left free in the numbering
    return keys;
}

std::vector<std::string> OtherKeys() {
    auto keys = Numbers(1, 20);
    keys.push_back("AH");
    keys.insert(keys.end(), kPrayerKeys.begin(), kPrayerKeys.end());
    std::erase(keys, kPrayerKeys[kShurooq]);  // never comes next
    return keys;
}

/// What a written timetable says; its months and weekdays are numbered.
std::vector<std::string> TimetableKeys() {
    std::vector<std::string> keys = {
        "Code",         "Direction",   "Title",     "Day",       "Hijri",      "Latitude",
        "Longitude",    "Zone",        "FajrAngle", "IshaAngle", "AsrRatio",   "Qibla",
        "Begins",       "Ends",        "MonthPage", "YearPage",  "MonthTitle", "DayTitle",
        "FirstOfMonth", "HijriDate",   "Thousand",  "Million",   "Colon",      "Comma",
        "Digits",       "DecimalMark", "Clock"};
    keys.insert(keys.end(), kPrayerKeys.begin(), kPrayerKeys.end());
    for (const std::string& month : Numbers(1, 12)) {
        keys.push_back("Month" + month);
        keys.push_back("ShortMonth" + month);
    }
    for (const std::string& weekday : Numbers(0, 6)) {
        keys.push_back("Weekday" + weekday);
    }
    return keys;
}

/// What the window of the sky says.
std::vector<std::string> SkyKeys() {
    return {"TodayPage",     "PhasesPage",   "DayMonth",      "DayMonthYear",   "Sun",
            "Moon",          "Civil",        "Nautical",      "Astronomical",   "Rise",
            "Transit",       "Set",          "AlwaysUp",      "NeverUp",        "Above",
            "Below",         "MoonNow",      "NewMoon",       "WaxingCrescent", "FirstQuarter",
            "WaxingGibbous", "FullMoon",     "WaningGibbous", "LastQuarter",    "WaningCrescent",
            "EclipsesPage",  "QiblaPage",    "Penumbral",     "Partial",        "Annular",
            "Hybrid",        "Total",        "Eclipse",       "Greatest",       "Here",
            "Begins",        "GreatestHere", "Ends",          "Seen",           "SeenSpan",
            "SeenTwice",     "Magnitude",    "NotSeen",       "NoEclipse",      "EclipsesNote",
            "NoEclipseNote", "When",         "SunHeight",     "SunOnQibla",     "ShadowOnQibla",
            "SunOverMecca",  "IsDown",       "QiblaNote",     "MeccaNote"};
}

/// What the window of the crescent and its map say.
std::vector<std::string> CrescentKeys() {
    return {"Evening",
            "Sunset",
            "Moonset",
            "Lag",
            "Age",
            "Elongation",
            "Altitude",
            "ArcOfVision",
            "Width",
            "Yallop",
            "Odeh",
            "YallopA",
            "YallopB",
            "YallopC",
            "YallopD",
            "YallopE",
            "YallopF",
            "OdehA",
            "OdehB",
            "OdehC",
            "OdehD",
            "BeforeNewMoon",
            "MoonSetsFirst",
            "NoSunset",
            "ClassInWords",
            "Hours",
            "Way",
            "FirstDay",
            "YallopNakedEye",
            "YallopAided",
            "OdehNakedEye",
            "OdehAided",
            "UmmAlQura",
            "Arithmetic",
            "OnNone",
            "NotPublished",
            "NewMoonHere",
            "NewMoonUniversal",
            "MapTitle"};
}

template <class... Forms>
std::vector<std::unique_ptr<Form>> Make() {
    std::vector<std::unique_ptr<Form>> forms;
    (forms.push_back(std::make_unique<Forms>()), ...);
    return forms;
}

}  // namespace

const std::vector<PackSection>& PackVocabularies() {
    static const std::vector<PackSection> sections = {
        {"msg", MessageKeys()},
        {"other", OtherKeys()},
        {"Azan", {"0", "2", "3", "4", "5"}},
        {"desktop",
         {"OwnName",       "InWindowMenus", "NoMailAddress", "CityInSettings", "SavedAs",
          "NoTray",        "BareSamples",   "HelpTitle",     "HelpContents",   "HelpBack",
          "HelpForward",   "Minimize",      "Close",         "Tomorrow",       "Iftar",
          "Suhoor",        "IqamaAt",       "NormalSize",    "FillsScreen",    "SignedAnswer",
          "UnsignedAnswer"}},
        {"timetables", TimetableKeys()},
        {"moments",
         {"NextDay", "PreviousDay", "NextDayNote", "PreviousDayNote", "RuleNote", "RuleNone",
          "RuleMiddle", "RuleSeventh", "RuleAngle", "RuleNearest", "Imsak", "Duha", "MiddleOfNight",
          "LastThird"}},
        {"notices",
         {"PrayerAt", "InMinutes", "Iqama", "IqamaIn", "Missed", "Stop", "Open", "QuietUntil"}},
        {"adjustments",
         {"Custom", "UsualIn", "ByAngle", "AsOtherwise", "AtSunset", "Minutes", "Arithmetic",
          "UmmAlQura", "RuleNone", "RuleMiddle", "RuleSeventh", "RuleAngle", "RuleNearest",
          "OutOfRange", "Impossible", "NoOwnDigits"}},
        {"reminders",
         {"Percent",
          "Seconds",
          "AtOnce",
          "SilentMinutes",
          "None",
          "Never",
          "AsInSettings",
          "Athan1",
          "Athan2",
          "Athan3",
          "FajrAthan1",
          "FajrAthan2",
          "OwnFile",
          "Tone",
          "NoSound",
          "Muted",
          "Notification",
          "ShortTone",
          "Both",
          "Nothing",
          "Window",
          "WindowAndNotification",
          "NotificationWhileBusy",
          "BusyHint",
          "NotificationAlone",
          "DefaultDevice",
          "NotConnected",
          "ToneSounds",
          "Trouble",
          "CannotBePlayed",
          "NoServer",
          "NoDevice",
          "MutedDevice",
          "MutedProgram",
          "NoFormat",
          "ChooseSound",
          "SoundFiles",
          "AllFiles"}},
        {"sky", SkyKeys()},
        {"crescent", CrescentKeys()},
        {"methods",
         {"algeria",      "brunei",    "canada", "dubai",   "egypt",   "france",     "gulf",
          "indonesia",    "isna",      "jafari", "jordan",  "karachi", "kuwait",     "malaysia",
          "moonsighting", "morocco",   "mwl",    "oman",    "paris",   "portugal",   "qatar",
          "russia",       "singapore", "tehran", "tunisia", "turkey",  "umm-al-qura"}},
        {"terminal", {"NoPrinter", "SaveAs", "Exists", "Replace", "Cancel", "OK"}},
        {"distance", {"Kilometres", "Miles", "NauticalMiles"}}};
    return sections;
}

std::vector<std::string> FormPackKeys(const Form& form) {
    std::vector<std::string> keys = {form.Name()};
    for (const Control* control : form.Controls()) {
        if (!TakesPackTexts(*control)) {
            continue;
        }
        keys.push_back(CaptionKey(*control));
        if (HasToolTip(*control)) {
            keys.push_back(ToolTipKey(*control));
        }
    }
    return keys;
}

std::vector<PackSection> PackSections() {
    std::vector<PackSection> sections = PackVocabularies();
    for (const auto& form : PackForms()) {
        sections.push_back({form->Name(), FormPackKeys(*form)});
        if (form->Name() == "frmRamadan") {
            sections.back().keys.push_back("Text1");  // the help text, which is no caption
        }
    }
    return sections;
}

std::vector<std::unique_ptr<Form>> PackForms() {
    return Make<FrmMain, SettingsForm, MessageForm, FrmAthan, CountryForm, NewCoordinatesForm,
                WizardForm, DateConvertForm, QiblaForm, DistanceForm, MoonPhasesForm, RamadanForm,
                AboutForm, TimesForm, MonthForm, AdjustForm, RemindersForm, SkyForm,
                CrescentForm>();
}

}  // namespace horavex
