#pragma once

#include "forms/check_box.h"
#include "forms/combo_box.h"
#include "forms/command_button.h"
#include "forms/control_array.h"
#include "forms/form.h"
#include "forms/form_instance.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/range.h"
#include "windows/prayer_labels.h"

namespace horavex {

/// What goes beyond the settings: the method of an authority with its intervals and margins, the
/// rule of high latitudes and the Hijri date, beside a preview of today; the digits of numbers; and
/// what a second start does.
/// Labels that begin with lblShown say what the controls beside them stand for.
class AdjustForm : public Form {
public:
    AdjustForm();
    ~AdjustForm() override;

    horavex::Frame fraMethod{*this, "fraMethod", {.caption = "Method"}};
    Label lblMethod{fraMethod, "lblMethod", {.caption = "Authority"}};
    ComboBox cboMethod{fraMethod, "cboMethod", {.typed = false}};
    Label lblFajrAngle{fraMethod, "lblFajrAngle", {.caption = "Fajr angle"}};
    ScrollBar hsFajrAngle{fraMethod, "hsFajrAngle", {.max = 900, .largeStep = 10}};
    Label lblShownFajrAngle{fraMethod, "lblShownFajrAngle"};
    Label lblIshaAngle{fraMethod, "lblIshaAngle", {.caption = "Isha angle"}};
    ScrollBar hsIshaAngle{fraMethod, "hsIshaAngle", {.max = 900, .largeStep = 10}};
    Label lblShownIshaAngle{fraMethod, "lblShownIshaAngle"};
    Label lblIshaInterval{fraMethod, "lblIshaInterval", {.caption = "Isha after Maghrib"}};
    ScrollBar hsIshaInterval{fraMethod, "hsIshaInterval", {.max = 180, .largeStep = 15}};
    Label lblShownIshaInterval{fraMethod, "lblShownIshaInterval"};
    Label lblIshaRamadan{fraMethod, "lblIshaRamadan", {.caption = "Isha in Ramadan"}};
    ScrollBar hsIshaRamadan{fraMethod, "hsIshaRamadan", {.max = 180, .largeStep = 15}};
    Label lblShownIshaRamadan{fraMethod, "lblShownIshaRamadan"};
    Label lblMaghribAngle{fraMethod, "lblMaghribAngle", {.caption = "Maghrib angle"}};
    ScrollBar hsMaghribAngle{fraMethod, "hsMaghribAngle", {.max = 100, .largeStep = 10}};
    Label lblShownMaghribAngle{fraMethod, "lblShownMaghribAngle"};
    CheckBox chkSunOfTheDay{fraMethod,
                            "chkSunOfTheDay",
                            {.caption = "Calculate each year with its own sun",
                             .toolTipText = "Without it the sun of some years, leap years among "
                                            "them, runs a day ahead"}};

    horavex::Frame fraRule{*this, "fraRule", {.caption = "High latitudes"}};
    Label lblRule{fraRule, "lblRule", {.caption = "Rule for nights without twilight"}};
    ComboBox cboRule{fraRule, "cboRule", {.typed = false}};
    Label lblShownRule{fraRule, "lblShownRule"};

    horavex::Frame fraToday{*this, "fraToday", {.caption = "Minutes added, and today's times"}};
    ControlArray<Label> lblPrayer{fraToday, "lblPrayer", PrayerLabels(kPrayerKeys)};
    ControlArray<ScrollBar> hsOffset{fraToday,
                                     "hsOffset",
                                     {{0, {.min = -60, .max = 60, .largeStep = 5}},
                                      {1, {.min = -60, .max = 60, .largeStep = 5}},
                                      {2, {.min = -60, .max = 60, .largeStep = 5}},
                                      {3, {.min = -60, .max = 60, .largeStep = 5}},
                                      {4, {.min = -60, .max = 60, .largeStep = 5}},
                                      {5, {.min = -60, .max = 60, .largeStep = 5}}}};
    ControlArray<Label> lblShownOffset{fraToday, "lblShownOffset", {{0}, {1}, {2}, {3}, {4}, {5}}};
    ControlArray<Label> lblTime{fraToday, "lblTime", {{0}, {1}, {2}, {3}, {4}, {5}}};

    /// What the mark beside a time means, or why there are no times.
    Label lblShownNote{fraToday, "lblShownNote"};
    CheckBox chkAroundTheDay{
        fraToday,
        "chkAroundTheDay",
        {.caption = "Imsak, Duha and the parts of the night in the tables",
         .toolTipText = "Day browser, month, pages and files show these times too"}};

    horavex::Frame fraHijri{*this, "fraHijri", {.caption = "Hijri date"}};
    Label lblCalendar{fraHijri, "lblCalendar", {.caption = "Calendar"}};
    ComboBox cboCalendar{fraHijri, "cboCalendar", {.typed = false}};
    Label lblDays{fraHijri, "lblDays", {.caption = "Days added"}};
    ComboBox cboDays{fraHijri, "cboDays", {.items = {"-2", "-1", "0", "+1", "+2"}, .typed = false}};
    Label lblShownHijri{fraHijri, "lblShownHijri"};

    CheckBox chkOwnDigits{*this,
                          "chkOwnDigits",
                          {.caption = "Numbers in the digits of the language",
                           .toolTipText = "Face, windows, notifications and printed pages write "
                                          "numbers so"}};
    CheckBox chkShowRunning{*this,
                            "chkShowRunning",
                            {.caption = "A second start shows the running program",
                             .toolTipText = "Without it the second start only says that the "
                                            "program runs already"}};

    CommandButton cmdReset{
        *this,
        "cmdReset",
        {.caption = "&Reset", .toolTipText = "Removes every adjustment except the two angles"}};
    CommandButton cmdOK{*this, "cmdOK", {.caption = "&OK"}};
    CommandButton cmdCancel{*this, "cmdCancel", {.caption = "&Cancel"}};
};

inline const FormInstance<AdjustForm> frmAdjust;

}  // namespace horavex
