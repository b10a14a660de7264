#pragma once

#include <string>
#include <vector>

#include "base/program_state.h"
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

/// A window with one control of each kind at least.
class SampleForm : public Form {
public:
    SampleForm() : Form("frmSample", {.caption = "Sample", .width = 6000, .height = 4000}) {}

    Label lblCity{*this,
                  "lblCity",
                  {.caption = "Nowhere", .toolTipText = "The city", .left = 120, .width = 900}};
    SkinLabel SkinLabel1{*this, "SkinLabel1", {.caption = "Click here"}};
    horavex::Frame frameAsr{*this, "frameAsr", {.caption = "Asr", .width = 3000, .height = 1000}};
    ControlArray<OptionButton> optAsrRatio{
        frameAsr,
        "optAsrRatio",
        {{1, {.caption = "Shafaii", .value = 1}}, {2, {.caption = "Hanafi"}}}};
    OptionButton optAlone{*this, "optAlone", {.caption = "Alone"}};
    CheckBox chkAlarm{*this, "chkAlarm", {.caption = "Alarm", .value = 1}};
    TextBox txtZone{*this, "txtZone", {.text = "+2.00"}};
    ListBox lstLanguage{
        *this, "lstLanguage", {.items = {"English", "French", "German"}, .listIndex = 0}};
    ComboBox cboDay{*this, "cboDay", {.items = {"1", "2", "3"}, .height = 315}};
    ScrollBar hsDepr{*this, "hsDepr", {.value = 18, .min = 15, .max = 20}};
    Slider hsDepr1{*this, "hsDepr1", {.min = 0, .max = 4}};
    ProgressBar barDone{*this, "barDone", {.max = 100}};
    Picture picMap{*this, "picMap", {.picture = "map", .width = 800, .height = 400}};
    TabStrip tabs{*this, "tabs", {.items = {"New Moon", "Full Moon"}}};
    Shape Shape1{*this, "Shape1", {.width = 500, .height = 100}};
    MenuItem mnuFile{*this, "mnuFile", {.caption = "File", .enabled = false}};
    MenuItem mnuExit{mnuFile, "mnuExit", {.caption = "E&xit"}};
    ControlArray<MenuItem> mnuL{mnuFile, "mnuL", {{0, {.caption = "-"}}}};
    Timer tmrUpdate{*this, "tmrUpdate", {.enabled = false, .intervalMs = 1000}};
    CommandButton cmdOK{*this, "cmdOK", {.caption = "&OK"}};
};

/// A fresh process with one sample window and a list of what happened in it.
class FormTest : public testing::Test {
protected:
    FormTest() { ResetProgramState(); }
    ~FormTest() override { InstallFormHost(nullptr); }

    /// A handler that writes down the given word.
    Handler Note(const std::string& word) {
        return [this, word] { events.push_back(word); };
    }

    std::vector<std::string> events;
    SampleForm form;
};

}  // namespace horavex
