#pragma once

#include "forms/control_array.h"
#include "forms/form.h"
#include "forms/form_instance.h"
#include "forms/label.h"
#include "forms/menu_item.h"
#include "forms/picture.h"
#include "forms/timer.h"
#include "windows/prayer_labels.h"

namespace horavex {

/// The face's window. Its labels lie hidden behind the face and are the program's store of
/// display texts: everybody may read and write them. Its menus are popped up by the face and the
/// tray, never shown as a bar.
class FrmMain : public Form {
public:
    FrmMain();
    ~FrmMain() override;

    /// What the face tells: today's times, the date and the time of day.
    ControlArray<Label> lblZoritName{*this, "lblZoritName", EverydayPrayerLabels()};
    ControlArray<Label> lblZoritNameArabic{*this, "lblZoritNameArabic", PrayerLabels(kPrayerKeys)};
    ControlArray<Label> lblTime{*this, "lblTime", {{0}, {1}, {2}, {3}, {4}, {5}}};
    Label lblDate{*this, "lblDate"};
    Label lblCurrTime{*this, "lblCurrTime"};
    Label Label1{*this, "Label1", {.caption = "Next Athan:"}};
    Label lblNextAthan{*this, "lblNextAthan"};
    Label Label3{*this, "Label3", {.caption = "Remaining:"}};
    Label lblRemaining{*this, "lblRemaining"};
    Label lblCity{*this, "lblCity"};
    Label lblQibla{*this, "lblQibla"};

    /// The clock of the whole program: from the start to the end of the process.
    Timer tmrUpdate{*this, "tmrUpdate", {.enabled = false, .intervalMs = 1000}};

    /// Element 0 is the icon of the notification area.
    ControlArray<Picture> traypic{*this, "traypic", {{0}, {1}, {2}, {3}}};

    MenuItem mnuAthan{*this, "mnuAthan", {.caption = "Athan"}};
    MenuItem mnuThanNow{mnuAthan, "mnuThanNow", {.caption = "Athan Now"}};
    MenuItem mnuExport{mnuAthan, "mnuExport", {.caption = "Export Prayer Calender"}};
    MenuItem mnuExit{mnuAthan, "mnuExit", {.caption = "Exit"}};

    MenuItem mnuSettings{*this, "mnuSettings", {.caption = "Settings"}};
    MenuItem mnumSettings{mnuSettings, "mnumSettings", {.caption = "Settings"}};
    MenuItem mnuChangeCity{
        mnuSettings, "mnuChangeCity", {.caption = "Change City", .enabled = false}};
    MenuItem mnuAthanSettings{mnuSettings, "mnuAthanSettings", {.caption = "Athan Settings"}};
    MenuItem mnuPrayerTimes{mnuSettings, "mnuPrayerTimes", {.caption = "Prayer Times"}};
    MenuItem mnuChangeLanguage{mnuSettings, "mnuChangeLanguage", {.caption = "Language"}};
    ControlArray<MenuItem> mnuL{mnuChangeLanguage, "mnuL", {{0, {.caption = "-"}}}};
    MenuItem mnuWizard{mnuSettings, "mnuWizard", {.caption = "Configuration Wizard"}};
    MenuItem mnuLine1{mnuSettings, "mnuLine1", {.caption = "-"}};
    MenuItem mnuAdjustments{mnuSettings, "mnuAdjustments", {.caption = "Adjustments"}};
    MenuItem mnuReminders{mnuSettings, "mnuReminders", {.caption = "Athan and Reminders"}};

    MenuItem mnuLine3{mnuSettings, "mnuLine3", {.caption = "-"}};
    MenuItem mnuSmall{mnuSettings, "mnuSmall", {.caption = "Small Face"}};
    MenuItem mnuFullScreen{mnuSettings, "mnuFullScreen", {.caption = "Full Screen"}};
    MenuItem mnuAbove{mnuSettings, "mnuAbove", {.caption = "Keep above Other Windows"}};

    MenuItem mnuTools{*this, "mnuTools", {.caption = "Tools"}};
    MenuItem mnuDateConversion{mnuTools, "mnuDateConversion", {.caption = "Date Conversion"}};
    MenuItem mnuQibla{mnuTools, "mnuQibla", {.caption = "Qibla"}};
    MenuItem mnuDistance{mnuTools, "mnuDistance", {.caption = "Distance between 2 cities"}};
    MenuItem mnuMoonPhases{mnuTools, "mnuMoonPhases", {.caption = "Moon Phases"}};
    MenuItem mnuLine2{mnuTools, "mnuLine2", {.caption = "-"}};
    MenuItem mnuSky{mnuTools, "mnuSky", {.caption = "Sky"}};
    MenuItem mnuCrescent{mnuTools, "mnuCrescent", {.caption = "Crescent"}};

    MenuItem mnuHelp{*this, "mnuHelp", {.caption = "Help"}};
    MenuItem mnuAbout{mnuHelp, "mnuAbout", {.caption = "About Us"}};
    MenuItem mnuHelpIndex{mnuHelp, "mnuHelpIndex", {.caption = "Help Index"}};
    MenuItem mnuUpdate{mnuHelp, "mnuUpdate", {.caption = "Update"}};

    MenuItem mnuPopup{*this, "mnuPopup", {.caption = "Popup", .enabled = false}};
    MenuItem mnuPopFront{mnuPopup, "mnuPopFront", {.caption = "Sho&w Horavex"}};
    MenuItem mnuLine4{mnuPopup, "mnuLine4", {.caption = "-"}};
    MenuItem mnuPopAthan{mnuPopup, "mnuPopAthan", {.caption = "&Athan", .enabled = false}};
    MenuItem mnuPopMoonPhases{
        mnuPopup, "mnuPopMoonPhases", {.caption = "&Moon Phases", .enabled = false}};
    MenuItem mnuPopShow{mnuPopup, "mnuPopShow", {.caption = "&Prayer Time"}};
    MenuItem mnuPopQibla{mnuPopup, "mnuPopQibla", {.caption = "&Qibla", .enabled = false}};
    MenuItem mnuPopExport{mnuPopup, "mnuPopExport", {.caption = "E&xport"}};
    MenuItem mnuPopHelp{mnuPopup, "mnuPopHelp", {.caption = "&Help"}};
    MenuItem mnuPopVisitWebSite{mnuPopup, "mnuPopVisitWebSite", {.caption = "&Visit Our Site"}};
    MenuItem mnuPopEmailUS{mnuPopup, "mnuPopEmailUS", {.caption = "&Email Us"}};
    MenuItem mnuLine5{mnuPopup, "mnuLine5", {.caption = "-"}};
    MenuItem mnuPopAdjustments{mnuPopup, "mnuPopAdjustments", {.caption = "Ad&justments"}};
    MenuItem mnuPopReminders{mnuPopup, "mnuPopReminders", {.caption = "Athan and &Reminders"}};
    MenuItem mnuLine6{mnuPopup, "mnuLine6", {.caption = "-"}};
    MenuItem mnuPopQuietNext{
        mnuPopup, "mnuPopQuietNext", {.caption = "Quiet until the &Next Prayer"}};
    MenuItem mnuPopQuietToday{mnuPopup, "mnuPopQuietToday", {.caption = "Quiet &Today"}};
    MenuItem mnuPopQuietHours{mnuPopup, "mnuPopQuietHours", {.caption = "Quiet H&ours"}};
    MenuItem mnuLine7{mnuPopup, "mnuLine7", {.caption = "-"}};
    MenuItem mnuPopSmall{mnuPopup, "mnuPopSmall", {.caption = "&Small Face"}};
    MenuItem mnuPopFullScreen{mnuPopup, "mnuPopFullScreen", {.caption = "&Full Screen"}};
    MenuItem mnuPopAbove{mnuPopup, "mnuPopAbove", {.caption = "&Keep above Other Windows"}};
    MenuItem mnuLine8{mnuPopup, "mnuLine8", {.caption = "-"}};
    MenuItem mnuPopExit{mnuPopup, "mnuPopExit", {.caption = "&Exit"}};
};

inline const FormInstance<FrmMain> frmMain;

}  // namespace horavex
