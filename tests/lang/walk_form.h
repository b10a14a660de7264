#pragma once

#include <string>

#include "forms/check_box.h"
#include "forms/combo_box.h"
#include "forms/command_button.h"
#include "forms/control_array.h"
#include "forms/form.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/list.h"
#include "forms/menu_item.h"
#include "forms/option_button.h"
#include "forms/picture.h"
#include "forms/range.h"
#include "forms/text_box.h"
#include "forms/timer.h"

namespace horavex {

/// A window with every kind of control, arrays, tooltips and runtime controls for a pack to walk.
class WalkForm : public Form {
public:
    explicit WalkForm(const std::string& name = "frmWalk")
        : Form(name, {.caption = "Definition"}) {}

    // The seven kinds.
    horavex::Frame fraAsr{*this, "fraAsr", {.caption = "frame", .toolTipText = "about frame"}};
    ControlArray<OptionButton> optAsrRatio{
        fraAsr,
        "optAsrRatio",
        {{1, {.caption = "one", .toolTipText = "about one"}}, {2, {.caption = "two"}}}};
    Label lblTitle{*this, "lblTitle", {.caption = "label", .toolTipText = "about label"}};
    SkinLabel SkinLabel1{*this, "SkinLabel1", {.caption = "skin", .toolTipText = "about skin"}};
    CheckBox chkAlarm{*this, "chkAlarm", {.caption = "check", .toolTipText = "about check"}};
    ControlArray<CommandButton> cmdClose{
        *this, "cmdClose", {{0, {.caption = "button", .toolTipText = "about button"}}}};
    CommandButton SettingsSet{*this, "SettingsSet", {.caption = "set", .toolTipText = "about set"}};
    MenuItem mnuFile{*this, "mnuFile", {.caption = "menu"}};
    MenuItem mnuExit{mnuFile, "mnuExit", {.caption = "entry"}};

    // Kinds that no pack reaches.
    TextBox txtZone{*this, "txtZone", {.text = "text", .toolTipText = "about text"}};
    ListBox lstNames{*this, "lstNames", {.toolTipText = "about list", .items = {"item"}}};
    ComboBox cboDay{*this, "cboDay", {.text = "combo", .toolTipText = "about combo"}};
    ScrollBar hsDepr{*this, "hsDepr"};
    Slider hsDepr1{*this, "hsDepr1", {.toolTipText = "about slider"}};
    ProgressBar barDone{*this, "barDone", {.toolTipText = "about bar"}};
    Picture picMap{*this, "picMap", {.toolTipText = "about picture"}};
    TabStrip tabs{*this, "tabs", {.toolTipText = "about tabs", .items = {"tab"}}};
    Shape Shape1{*this, "Shape1"};
    Timer tmrUpdate{*this, "tmrUpdate"};

    // Names that look like those of runtime controls.
    Label lblTimeLeft{*this, "lblTimeLeft", {.caption = "left", .toolTipText = "about left"}};
    MenuItem mnuLabel{mnuFile, "mnuLabel", {.caption = "L"}};
    ControlArray<MenuItem> mnuL{mnuFile, "mnuL", {{0, {.caption = "-"}}}};
    Label lblDepr{*this, "lblDepr", {.caption = "18"}};
    Label lblDeprMax{*this, "lblDeprMax", {.caption = "max"}};
    Label lblCityBanner{*this, "lblCityBanner", {.caption = "banner"}};
    Label MyLblTime{*this, "MyLblTime", {.caption = "mine"}};
};

}  // namespace horavex
