#pragma once

#include "forms/command_button.h"
#include "forms/form.h"
#include "forms/form_instance.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/option_button.h"
#include "forms/text_box.h"

namespace horavex {

/// A place that the database does not have: its name, its zone, and its coordinates in degrees,
/// minutes and seconds. Nothing is done with them yet.
class NewCoordinatesForm : public Form {
public:
    NewCoordinatesForm();
    ~NewCoordinatesForm() override;

    Label lblName{*this, "lblName", {.caption = "City"}};
    TextBox Text1{*this, "Text1"};
    Label lblZone{*this, "lblZone", {.caption = "Time Zone"}};
    TextBox Text2{*this, "Text2"};

    horavex::Frame fraLatitude{*this, "fraLatitude", {.caption = "Latitude"}};
    Label lblDegLat{fraLatitude, "lblDegLat", {.caption = "Degrees"}};
    TextBox Text3{fraLatitude, "Text3"};
    Label lblMinLat{fraLatitude, "lblMinLat", {.caption = "Minutes"}};
    TextBox Text4{fraLatitude, "Text4"};
    Label lblSecLat{fraLatitude, "lblSecLat", {.caption = "Seconds"}};
    TextBox Text5{fraLatitude, "Text5"};
    OptionButton Option1{fraLatitude, "Option1", {.caption = "&North", .value = 1}};
    OptionButton Option2{fraLatitude, "Option2", {.caption = "&South"}};

    horavex::Frame fraLongitude{*this, "fraLongitude", {.caption = "Longitude"}};
    Label lblDegLong{fraLongitude, "lblDegLong", {.caption = "Degrees"}};
    TextBox Text6{fraLongitude, "Text6"};
    Label lblMinLong{fraLongitude, "lblMinLong", {.caption = "Minutes"}};
    TextBox Text7{fraLongitude, "Text7"};
    Label lblSecLong{fraLongitude, "lblSecLong", {.caption = "Seconds"}};
    TextBox Text8{fraLongitude, "Text8"};
    OptionButton Option3{fraLongitude, "Option3", {.caption = "&East", .value = 1}};
    OptionButton Option4{fraLongitude, "Option4", {.caption = "&West"}};

    CommandButton cmdOK{*this, "cmdOK", {.caption = "&OK"}};
    CommandButton cmdClear{*this, "cmdClear", {.caption = "&Clear"}};
};

inline const FormInstance<NewCoordinatesForm> NewCoordinates;

}  // namespace horavex
