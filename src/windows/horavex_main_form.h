#pragma once

#include "forms/check_box.h"
#include "forms/combo_box.h"
#include "forms/command_button.h"
#include "forms/control_array.h"
#include "forms/form.h"
#include "forms/form_instance.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/list.h"
#include "forms/menu_item.h"
#include "forms/option_button.h"
#include "forms/range.h"
#include "forms/text_box.h"
#include "forms/timer.h"

namespace horavex {

/// The settings window. It is loaded at every start and stays hidden until it is asked for; its
/// controls hold the values and texts of the place and the method that others read.
class SettingsForm : public Form {
public:
    SettingsForm();
    ~SettingsForm() override;

    horavex::Frame fraCity{*this, "fraCity", {.caption = "Location"}};
    Label lblCityBanner{fraCity, "lblCityBanner", {.caption = "City"}};
    Label lblCity{fraCity, "lblCity"};
    Label lblLocationLat{fraCity, "lblLocationLat"};
    Label lblLocationLon{fraCity, "lblLocationLon"};
    CommandButton cmdChangeCity{fraCity, "cmdChangeCity", {.caption = "Change &City"}};
    Label lblTimeZone{fraCity, "lblTimeZone", {.caption = "Time Zone"}};
    Label lblGMT{fraCity, "lblGMT", {.caption = "GMT"}};
    TextBox txtTimeZone{fraCity, "txtTimeZone"};
    CommandButton cmdComputerZone{
        fraCity, "cmdComputerZone", {.caption = "Use this computer's &zone"}};

    CheckBox chkAutomaticZone{
        fraCity, "chkAutomaticZone", {.caption = "Time zone and daylight saving of the city"}};
    Label lblClocks{fraCity, "lblClocks", {.caption = "This computer's clock", .visible = false}};

    horavex::Frame fraAngles{*this, "fraAngles", {.caption = "Depression angles"}};
    Label lblMethod{fraAngles, "lblMethod", {.caption = "&Method"}};
    ComboBox cboMethod{fraAngles, "cboMethod", {.typed = false}};
    Label lblFajrAngle{fraAngles, "lblFajrAngle", {.caption = "Fajr angle"}};
    Label lblDeprMin{fraAngles, "lblDeprMin"};
    ScrollBar hsDepr{fraAngles, "hsDepr", {.max = 90}};
    Label lblDeprMax{fraAngles, "lblDeprMax"};
    Slider hsDepr1{fraAngles, "hsDepr1", {.max = 4}};
    Label lblDepr{fraAngles, "lblDepr"};
    Label lblIshaAngle{fraAngles, "lblIshaAngle", {.caption = "Isha angle"}};
    Label Label7{fraAngles, "Label7"};
    ScrollBar hsDepr2{fraAngles, "hsDepr2", {.max = 90}};
    Label Label6{fraAngles, "Label6"};
    Slider hsDepr21{fraAngles, "hsDepr21", {.max = 4}};
    Label lblDepr1{fraAngles, "lblDepr1"};
    CommandButton cmdAdjustments{fraAngles, "cmdAdjustments", {.caption = "Ad&justments"}};

    horavex::Frame fraAsr{*this, "fraAsr", {.caption = "Asr ratio"}};
    ControlArray<OptionButton> optAsrRatio{
        fraAsr,
        "optAsrRatio",
        {{1, {.caption = "Shafaii Asr Ratio"}}, {2, {.caption = "Hanafi Asr Ratio"}}}};

    horavex::Frame fraDayLT{*this, "fraDayLT", {.caption = "Daylight Saving"}};
    CheckBox chkDayLT{fraDayLT, "chkDayLT", {.caption = "Daylight Saving"}};
    Label lblBeginAt{fraDayLT, "lblBeginAt", {.caption = "Begins on"}};
    ScrollBar hsBegin{fraDayLT, "hsBegin", {.max = 364}};
    Label lblBegin{fraDayLT, "lblBegin"};
    Label lblEndAT{fraDayLT, "lblEndAT", {.caption = "Ends on"}};
    ScrollBar hsEnd{fraDayLT, "hsEnd", {.max = 364}};
    Label lblEnd{fraDayLT, "lblEnd"};

    horavex::Frame fraAthan{*this, "fraAthan", {.caption = "Athan"}};
    ControlArray<OptionButton> optAthanType{
        fraAthan,
        "optAthanType",
        {{1, {.caption = "Mute"}}, {2, {.caption = "Buzzard"}}, {3, {.caption = "Sound"}}}};
    CommandButton cmdAthan{fraAthan, "cmdAthan", {.caption = "&Athan"}};

    horavex::Frame fraAlarm{*this, "fraAlarm", {.caption = "Alarm"}};
    CheckBox chkAlarm{fraAlarm, "chkAlarm", {.caption = "Alarm"}};
    Label lblAlarmAt{fraAlarm, "lblAlarmAt", {.caption = "Alarm at"}};
    ScrollBar hsAlarm{fraAlarm, "hsAlarm", {.max = 287, .largeStep = 12}};
    Label lblAlarm{fraAlarm, "lblAlarm"};

    horavex::Frame fraQibla{*this, "fraQibla", {.caption = "Qibla"}};
    ControlArray<OptionButton> optQiblaMethod{
        fraQibla,
        "optQiblaMethod",
        {{1, {.caption = "Qibla Method 1"}}, {2, {.caption = "Qibla Method 2"}}}};
    Label lblQibla{fraQibla, "lblQibla"};
    CommandButton cmdQibla{fraQibla, "cmdQibla", {.caption = "&Qibla"}};

    horavex::Frame fraLanguage{*this, "fraLanguage", {.caption = "Language"}};
    ListBox lstLanguage{fraLanguage,
                        "lstLanguage",
                        {.items = {"English", "French", "German", "Arabic", "Spanish"}}};

    CheckBox chkAddToStartup{
        *this, "chkAddToStartup", {.caption = "Add Horavex to Startup", .value = 1}};
    CommandButton cmdDefault{*this, "cmdDefault", {.caption = "&Default"}};
    CommandButton SettingsSet{*this, "SettingsSet", {.caption = "&Set"}};

    /// The six fixed spellings of the prayers.
    ControlArray<Label> lblZoritName{*this, "lblZoritName", {{0}, {1}, {2}, {3}, {4}, {5}}};

    /// Visible as long as the sound can be chosen; they have no menu around them.
    MenuItem mnuPopSound{*this, "mnuPopSound", {.caption = "Sound"}};
    MenuItem mnuSound{*this, "mnuSound", {.caption = "Sound"}};

    /// Nothing starts either of them; the date conversion window stops them all the same.
    Timer Timer1{*this, "Timer1", {.enabled = false}};
    Timer UpdateCheckTimer{*this, "UpdateCheckTimer", {.enabled = false, .intervalMs = 30000}};

    /// The zone box as it stood when it last gained the focus.
    std::string lastTimeZoneText;

    /// The update check, with what it shows while it runs, the way to the web site and the help.
    Label VisitWebSiteLabel{*this, "VisitWebSiteLabel", {.caption = "Check for an update"}};
    Label lblInternetConnect{*this,
                             "lblInternetConnect",
                             {.caption = "Checking internet connection ", .visible = false}};
    ProgressBar ProgressBar1{*this, "ProgressBar1", {.visible = false, .max = 10}};
    CommandButton AboutUpdateButton{*this, "AboutUpdateButton", {.caption = "Visit Our Site"}};
    CommandButton QiblaHelpButton{fraQibla, "QiblaHelpButton", {.caption = "Help"}};
    CommandButton SettingsHelp{*this, "SettingsHelp", {.caption = "Help on settings"}};
    CommandButton Help{*this, "Help", {.caption = "Help Index"}};
};

inline const FormInstance<SettingsForm> HoravexMainForm;

}  // namespace horavex
