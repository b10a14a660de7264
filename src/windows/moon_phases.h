#pragma once

#include "forms/check_box.h"
#include "forms/combo_box.h"
#include "forms/command_button.h"
#include "forms/form.h"
#include "forms/form_instance.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/list.h"
#include "forms/option_button.h"
#include "forms/picture.h"
#include "forms/text_box.h"

namespace horavex {

/// The moon window: four pages with the tables of the phases, rise and set, and the eclipses. A
/// picture beside each table has the disc of every row, and the row that comes next is marked; one
/// more shows tonight's moon.
class MoonPhasesForm : public Form {
public:
    MoonPhasesForm();
    ~MoonPhasesForm() override;

    SkinLabel SkinLabel1{
        *this,
        "SkinLabel1",
        {.caption = "To define astronomically the 1st.day of RAMADAN(or any month) click here"}};
    Picture picTonight{*this, "picTonight", {.width = 900, .height = 900}};
    Label lblTonight{
        *this, "lblTonight", {.caption = "Tonight: {lit}% of the disc lit, day {day} of the moon"}};
    TabStrip SSTab1{*this,
                    "SSTab1",
                    {.items = {"New moon / First Quarter", "Full Moon / Last Quarter",
                               "Moon Rise / Set", "Solar / Lunar Eclipses"}}};

    SkinLabel lblMonth1{SSTab1, "lblMonth1", {.caption = "Arabic Month"}};
    TextBox Text1{SSTab1, "Text1"};
    SkinLabel lblNewMoon{SSTab1, "lblNewMoon", {.caption = "New Moon"}};
    Picture picNewMoon{SSTab1, "picNewMoon", {.width = 300, .height = 3900}};
    TextBox Text2{SSTab1, "Text2"};
    SkinLabel lblFirstQuarter{SSTab1, "lblFirstQuarter", {.caption = "First Quarter"}};
    Picture picFirstQuarter{SSTab1, "picFirstQuarter", {.width = 300, .height = 3900}};
    TextBox Text3{SSTab1, "Text3"};

    SkinLabel lblMonth2{SSTab1, "lblMonth2", {.caption = "Arabic Month"}};
    TextBox Text4{SSTab1, "Text4"};
    SkinLabel lblFullMoon{SSTab1, "lblFullMoon", {.caption = "Full Moon"}};
    Picture picFullMoon{SSTab1, "picFullMoon", {.width = 300, .height = 3900}};
    TextBox Text5{SSTab1, "Text5"};
    SkinLabel lblLastQuarter{SSTab1, "lblLastQuarter", {.caption = "Last Quarter"}};
    Picture picLastQuarter{SSTab1, "picLastQuarter", {.width = 300, .height = 3900}};
    TextBox Text6{SSTab1, "Text6"};

    Label lblDay{SSTab1, "lblDay", {.caption = "Day"}};
    ComboBox cboDay{SSTab1, "cboDay"};
    Label lblMonth{SSTab1, "lblMonth", {.caption = "Month"}};
    ComboBox cboMonth{SSTab1, "cboMonth"};
    Label lblYear{SSTab1, "lblYear", {.caption = "Year"}};
    ComboBox cboYear{SSTab1, "cboYear"};
    OptionButton optCurrentLocation{
        SSTab1, "optCurrentLocation", {.caption = "Current location", .value = 1}};
    OptionButton optCustomLocation{SSTab1, "optCustomLocation", {.caption = "Custom location"}};
    horavex::Frame Frame4{SSTab1, "Frame4", {.caption = "Location"}};
    horavex::Frame fraLongitude{Frame4, "fraLongitude", {.caption = "Longitude"}};
    SkinLabel SkinLabel4{fraLongitude, "SkinLabel4", {.caption = "Degrees"}};
    TextBox txtLongH{fraLongitude, "txtLongH"};
    SkinLabel SkinLabel5{fraLongitude, "SkinLabel5", {.caption = "Minutes"}};
    TextBox txtLongM{fraLongitude, "txtLongM"};
    OptionButton optWest{fraLongitude, "optWest", {.caption = "West"}};
    OptionButton optEast{fraLongitude, "optEast", {.caption = "East", .value = 1}};
    horavex::Frame fraLatitude{Frame4, "fraLatitude", {.caption = "Latitude"}};
    SkinLabel SkinLabel6{fraLatitude, "SkinLabel6", {.caption = "Degrees"}};
    TextBox txtLatH{fraLatitude, "txtLatH"};
    SkinLabel SkinLabel7{fraLatitude, "SkinLabel7", {.caption = "Minutes"}};
    TextBox txtLatM{fraLatitude, "txtLatM"};
    OptionButton optSouth{fraLatitude, "optSouth", {.caption = "South"}};
    OptionButton optNorth{fraLatitude, "optNorth", {.caption = "North", .value = 1}};
    SkinLabel SkinLabel8{Frame4, "SkinLabel8", {.caption = "Time Zone"}};
    TextBox txtTimeZone{Frame4, "txtTimeZone"};
    CheckBox chkDayLightSaving{SSTab1, "chkDayLightSaving", {.caption = "Daylight Saving"}};
    CommandButton cmdCalculate{SSTab1, "cmdCalculate", {.caption = "&Calculate"}};
    Label lblMoonRise{SSTab1, "lblMoonRise"};
    Label lblMoonSet{SSTab1, "lblMoonSet"};
    Picture picDay{SSTab1, "picDay", {.width = 7200, .height = 900}};

    CommandButton Cmdeclipse_sun{SSTab1, "Cmdeclipse_sun", {.caption = "&Solar Eclipses"}};
    CommandButton Cmdeclipse_moon{SSTab1, "Cmdeclipse_moon", {.caption = "&Lunar Eclipses"}};
    CommandButton Cmdclear{SSTab1, "Cmdclear", {.caption = "Cl&ear"}};
    TextBox Text7{SSTab1, "Text7"};

    CommandButton Command2{*this, "Command2", {.caption = "&Print", .toolTipText = "Print window"}};
    CommandButton cmdClose{*this, "cmdClose", {.caption = "Cl&ose"}};

    Label lblSkyNote{*this,
                     "lblSkyNote",
                     {.caption = "These tables follow the program's own simple formulas and can be "
                                 "hours off. What the sky really does stands in the window "
                                 "\"Sky\"."}};
    CommandButton cmdSky{*this, "cmdSky", {.caption = "S&ky"}};
};

inline const FormInstance<MoonPhasesForm> Moon_Phases;

}  // namespace horavex
