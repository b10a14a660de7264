#pragma once

#include "forms/command_button.h"
#include "forms/form.h"
#include "forms/form_instance.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/option_button.h"
#include "forms/text_box.h"

namespace horavex {

/// The distance between two places. A south or west coordinate has its sign in all three boxes.
class DistanceForm : public Form {
public:
    DistanceForm();
    ~DistanceForm() override;

    horavex::Frame fraMode{*this, "fraMode", {.caption = "Distance"}};
    OptionButton OptionTwoCities{
        fraMode, "OptionTwoCities", {.caption = "Between two cities", .value = 1}};
    OptionButton OptionDistanceToMecca{
        fraMode, "OptionDistanceToMecca", {.caption = "From a city to Mecca"}};

    horavex::Frame fraCityA{*this, "fraCityA", {.caption = "City A"}};
    Label lblCityA{fraCityA, "lblCityA", {.caption = "City A is here"}};
    CommandButton cmdCityA{fraCityA, "cmdCityA", {.caption = "City &A"}};
    horavex::Frame fraALong{fraCityA, "fraALong", {.caption = "Longitude"}};
    Label lblDegALong{fraALong, "lblDegALong", {.caption = "Degrees"}};
    TextBox txtDegALong{fraALong, "txtDegALong"};
    Label lblMinALong{fraALong, "lblMinALong", {.caption = "Minutes"}};
    TextBox txtMinALong{fraALong, "txtMinALong"};
    Label lblSecALong{fraALong, "lblSecALong", {.caption = "Seconds"}};
    TextBox txtSecALong{fraALong, "txtSecALong"};
    OptionButton CityAEast{fraALong, "CityAEast", {.caption = "East"}};
    OptionButton CityAWest{fraALong, "CityAWest", {.caption = "West"}};
    horavex::Frame fraALat{fraCityA, "fraALat", {.caption = "Latitude"}};
    Label lblDegALat{fraALat, "lblDegALat", {.caption = "Degrees"}};
    TextBox txtDegALat{fraALat, "txtDegALat"};
    Label lblMinALat{fraALat, "lblMinALat", {.caption = "Minutes"}};
    TextBox txtMinALat{fraALat, "txtMinALat"};
    Label lblSecALat{fraALat, "lblSecALat", {.caption = "Seconds"}};
    TextBox txtSecALat{fraALat, "txtSecALat"};
    OptionButton CityANorth{fraALat, "CityANorth", {.caption = "North"}};
    OptionButton CityASouth{fraALat, "CityASouth", {.caption = "South"}};

    horavex::Frame fraCityB{*this, "fraCityB", {.caption = "City B"}};
    Label lblCityB{fraCityB, "lblCityB", {.caption = "City B is here"}};
    Label lblMecca{fraCityB, "lblMecca", {.caption = "Mecca", .visible = false}};
    CommandButton cmdCityB{fraCityB, "cmdCityB", {.caption = "City &B"}};
    horavex::Frame fraBLong{fraCityB, "fraBLong", {.caption = "Longitude"}};
    Label lblDegBLong{fraBLong, "lblDegBLong", {.caption = "Degrees"}};
    TextBox txtDegBLong{fraBLong, "txtDegBLong"};
    Label lblMinBLong{fraBLong, "lblMinBLong", {.caption = "Minutes"}};
    TextBox txtMinBLong{fraBLong, "txtMinBLong"};
    Label lblSecBLong{fraBLong, "lblSecBLong", {.caption = "Seconds"}};
    TextBox txtSecBLong{fraBLong, "txtSecBLong"};
    OptionButton CityBEast{fraBLong, "CityBEast", {.caption = "East"}};
    OptionButton CityBWest{fraBLong, "CityBWest", {.caption = "West"}};
    horavex::Frame fraBLat{fraCityB, "fraBLat", {.caption = "Latitude"}};
    Label lblDegBLat{fraBLat, "lblDegBLat", {.caption = "Degrees"}};
    TextBox txtDegBLat{fraBLat, "txtDegBLat"};
    Label lblMinBLat{fraBLat, "lblMinBLat", {.caption = "Minutes"}};
    TextBox txtMinBLat{fraBLat, "txtMinBLat"};
    Label lblSecBLat{fraBLat, "lblSecBLat", {.caption = "Seconds"}};
    TextBox txtSecBLat{fraBLat, "txtSecBLat"};
    OptionButton CityBNorth{fraBLat, "CityBNorth", {.caption = "North"}};
    OptionButton CityBSouth{fraBLat, "CityBSouth", {.caption = "South"}};

    horavex::Frame fraUnit{*this, "fraUnit", {.caption = "Unit"}};
    OptionButton optKilometers{fraUnit, "optKilometers", {.caption = "Kilometers"}};
    OptionButton optMiles{fraUnit, "optMiles", {.caption = "Miles"}};
    OptionButton optNauticalMiles{fraUnit, "optNauticalMiles", {.caption = "Nautical Miles"}};

    CommandButton cmdCalcDistance{*this, "cmdCalcDistance", {.caption = "&Calculate"}};
    CommandButton cmdDistanceClear{*this, "cmdDistanceClear", {.caption = "C&lear"}};
    TextBox txtDistanceRsult{*this, "txtDistanceRsult"};
    Label metricsLabel{*this, "metricsLabel"};
    Label lblSummary{
        *this, "lblSummary", {.caption = "{distance} {unit}, {bearing} clockwise from north"}};
};

inline const FormInstance<DistanceForm> frmDistance;

}  // namespace horavex
