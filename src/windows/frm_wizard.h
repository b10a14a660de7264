#pragma once

#include <string>

#include "forms/check_box.h"
#include "forms/combo_box.h"
#include "forms/command_button.h"
#include "forms/control_array.h"
#include "forms/form.h"
#include "forms/form_instance.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/option_button.h"
#include "forms/range.h"
#include "forms/text_box.h"
#include "windows/prayer_labels.h"

namespace horavex {

/// The wizard that walks a new user through the settings. Each of its four pages is a heading,
/// Frame, and a body, Frame2, of the page's number.
class WizardForm : public Form {
public:
    WizardForm();
    ~WizardForm() override;

    ControlArray<horavex::Frame> Frame{
        *this,
        "Frame",
        {{1, {.caption = "Select City"}},
         {2, {.caption = "Set Time-Zone", .visible = false}},
         {3, {.caption = "Daylight Saving", .visible = false}},
         {4, {.caption = "Fajr-Isha Depression Angles and Asr ratio", .visible = false}}}};
    Label lblText1{Frame(1),
                   "lblText1",
                   {.caption = "Click \"Set City\" to set your city, If you can not find your city "
                               "then chose the nearst city."}};
    Label lblText2{Frame(2),
                   "lblText2",
                   {.caption = "If you are sure that this GMT is not accurate then supply the "
                               "accurate one."}};
    Label lblText3{Frame(3),
                   "lblText3",
                   {.caption = "Hit the check box if your country is using the daylight saving, "
                               "Tune the start and end of daylight saving."}};
    Label lblText4{
        Frame(4),
        "lblText4",
        {.caption = "These angles will affect only their corresponding times, Tune them to set the "
                    "accurate Fajr and Isha times to your local calendar reference (Compare the "
                    "below prayer times to your prefered local reference i.e. Newspaper.)"}};

    ControlArray<horavex::Frame> Frame2{*this,
                                        "Frame2",
                                        {{1, {.caption = "City"}},
                                         {2, {.caption = "Time Zone", .visible = false}},
                                         {3, {.caption = "Daylight Saving", .visible = false}},
                                         {4, {.caption = "Angles", .visible = false}}}};

    Label label5{
        Frame2(1),
        "label5",
        {.caption = "Follow this wizard to correctly configure Horavex times", .visible = false}};
    Label lblCity{Frame2(1), "lblCity"};
    CommandButton cmdSetCity{Frame2(1), "cmdSetCity", {.caption = "&Set City"}};
    /// The largest city of the computer's zone, and the place that the desktop's service tells.
    CommandButton cmdMyCity{Frame2(1),
                            "cmdMyCity",
                            {.caption = "M&y city:",
                             .toolTipText = "The largest city of this computer's time zone",
                             .visible = false}};
    CommandButton cmdLocate{
        Frame2(1),
        "cmdLocate",
        {.caption = "&Locate me",
         .toolTipText = "Asks the desktop's location service once and takes the nearest city",
         .visible = false}};
    Label lblLocating{
        Frame2(1), "lblLocating", {.caption = "Asking the location service…", .visible = false}};
    Label lblNotLocated{
        Frame2(1),
        "lblNotLocated",
        {.caption = "The location service did not give a position.", .visible = false}};
    CheckBox chkAutomaticZone{
        Frame2(1), "chkAutomaticZone", {.caption = "Time zone and daylight saving of the city"}};
    /// What was picked and is not accepted yet.
    Label lblPicked{Frame2(1), "lblPicked", {.caption = "Picked city:", .visible = false}};
    Label lblPickedCity{Frame2(1), "lblPickedCity", {.caption = "City", .visible = false}};

    /// What is usual at the place, and what counts besides the angles.
    Label lblUsual{Frame2(1), "lblUsual", {.caption = "Usual in {country}: {method}"}};
    Label lblNoUsual{Frame2(1),
                     "lblNoUsual",
                     {.caption = "No usual method is known for {country}", .visible = false}};
    Label lblRuleMiddle{Frame2(1),
                        "lblRuleMiddle",
                        {.caption = "Fajr and Isha keep to their half of the night, also where the "
                                    "sun does not sink to the angle.",
                         .visible = false}};
    Label lblRuleSeventh{
        Frame2(1),
        "lblRuleSeventh",
        {.caption = "Beyond 48 degrees of latitude it may not get dark on summer nights: Fajr then "
                    "comes in the last seventh of the night, Isha in the first.",
         .visible = false}};
    Label lblHijri{Frame2(1),
                   "lblHijri",
                   {.caption = "Hijri dates by the Umm al-Qura calendar.", .visible = false}};
    CheckBox chkCalmAthan{
        Frame2(1),
        "chkCalmAthan",
        {.caption = "Each athan sounds once and ends by itself; no daily alarm",
         .toolTipText = "A window without a sound closes after 10 minutes. \"Athan and Reminders\" "
                        "has all of this, too",
         .visible = false}};

    Label lblCity2{Frame2(2), "lblCity2", {.caption = "City"}};
    Label lblLocationLat{Frame2(2), "lblLocationLat"};
    Label lblLocationLon{Frame2(2), "lblLocationLon"};
    Label lblTimeZone{Frame2(2), "lblTimeZone", {.caption = "Time Zone"}};
    Label lblGMT{Frame2(2), "lblGMT", {.caption = "GMT"}};
    TextBox txtTimeZone{Frame2(2), "txtTimeZone"};
    CommandButton cmdComputerZone{Frame2(2),
                                  "cmdComputerZone",
                                  {.caption = "Use this computer's &zone",
                                   .toolTipText = "Takes the zone and the daylight days from this "
                                                  "computer's time zone"}};

    CheckBox chkDayLT{Frame2(3), "chkDayLT", {.caption = "&Daylight Saving"}};
    Label lblBeginAt{Frame2(3), "lblBeginAt", {.caption = "Begins on"}};
    ScrollBar hsBegin{Frame2(3), "hsBegin", {.max = 364}};
    Label lblBegin{Frame2(3), "lblBegin"};
    Label lblEndAT{Frame2(3), "lblEndAT", {.caption = "Ends on"}};
    ScrollBar hsEnd{Frame2(3), "hsEnd", {.max = 364}};
    Label lblEnd{Frame2(3), "lblEnd"};

    Label lblMethod{Frame2(4), "lblMethod", {.caption = "&Method"}};
    ComboBox cboMethod{Frame2(4), "cboMethod", {.typed = false}};
    Label lblFajrAngle{Frame2(4), "lblFajrAngle", {.caption = "Fajr angle"}};
    Label lblDeprMin{Frame2(4), "lblDeprMin", {.caption = "Min."}};
    ScrollBar hsDepr{Frame2(4), "hsDepr", {.max = 90}};
    Label lblDeprMax{Frame2(4), "lblDeprMax", {.caption = "Max."}};
    Slider hsDepr1{Frame2(4), "hsDepr1", {.max = 4}};
    Label lblDepr{Frame2(4), "lblDepr"};
    Label lblIshaAngle{Frame2(4), "lblIshaAngle", {.caption = "Isha angle"}};
    Label Label7{Frame2(4), "Label7", {.caption = "Min."}};
    ScrollBar hsDepr2{Frame2(4), "hsDepr2", {.max = 90}};
    Label Label6{Frame2(4), "Label6", {.caption = "Max."}};
    Slider hsDepr21{Frame2(4), "hsDepr21", {.max = 4}};
    Label lblDepr1{Frame2(4), "lblDepr1"};
    Label lblInterval{Frame2(4),
                      "lblInterval",
                      {.caption = "Isha {minutes} minutes after Maghrib", .visible = false}};
    ControlArray<OptionButton> optAsrRatio{
        Frame2(4),
        "optAsrRatio",
        {{1, {.caption = "Standard(Shafii, Hanbli, and Maliki)"}}, {2, {.caption = "Hanafi"}}}};

    /// The preview: today's times with the settings as they stand.
    ControlArray<Label> lblZoritName{Frame2(4), "lblZoritName", EverydayPrayerLabels()};
    ControlArray<Label> lblZoritNameArabic{Frame2(4), "lblZoritNameArabic",
                                           PrayerLabels(kPrayerKeys)};
    ControlArray<Label> lblTime{Frame2(4), "lblTime", {{0}, {1}, {2}, {3}, {4}, {5}}};
    Label lblTimeNote{Frame2(4), "lblTimeNote", {.visible = false}};

    /// The times of today at the picked place, below each page but the last, which has its own.
    horavex::Frame fraToday{*this, "fraToday", {.caption = "Today"}};
    Label lblPlace{fraToday, "lblPlace", {.caption = "City"}};
    ControlArray<Label> lblPrayerToday{fraToday, "lblPrayerToday", PrayerLabels(kPrayerKeys)};
    ControlArray<Label> lblTimeToday{fraToday, "lblTimeToday", {{0}, {1}, {2}, {3}, {4}, {5}}};
    Label lblTimeTodayNote{fraToday, "lblTimeTodayNote", {.visible = false}};

    CommandButton Command3{*this, "Command3", {.caption = "&Cancel"}};
    CommandButton cmdPrev{*this, "cmdPrev", {.caption = "&Previuos", .enabled = false}};
    CommandButton cmdNext{*this, "cmdNext", {.caption = "&Next"}};

    /// The page on view, 1 to 4.
    std::int16_t currentPage = 1;

    /// The zone box as it stood when it last gained the focus.
    std::string lastTimeZoneText;
};

inline const FormInstance<WizardForm> frmWizard;

}  // namespace horavex
