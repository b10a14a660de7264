#pragma once

#include "forms/command_button.h"
#include "forms/control_array.h"
#include "forms/form.h"
#include "forms/form_instance.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/option_button.h"

namespace horavex {

/// The window in which the sounds of the athan are chosen and tried. The custom files and their
/// buttons are numbered 0 for Fajr and 1 for the other prayers.
class FrmAthan : public Form {
public:
    FrmAthan();
    ~FrmAthan() override;

    horavex::Frame fraFajr{*this, "fraFajr", {.caption = "Fajr Prayer Athan:"}};
    OptionButton DessamFajr{fraFajr, "DessamFajr", {.caption = "Dessam, Harram-Mekkah"}};
    OptionButton CorwynFajr{fraFajr, "CorwynFajr", {.caption = "Corwyn, Harram-Madinah"}};
    OptionButton optCustomFajr{fraFajr, "optCustomFajr", {.caption = "Custom File"}};
    Label lblCustomFajr{fraFajr, "lblCustomFajr"};

    horavex::Frame fraOther{
        *this, "fraOther", {.caption = "Zuhr, Asr, Maghrib and Isha Prayer Athan:"}};
    OptionButton DessamAthan{fraOther, "DessamAthan", {.caption = "Dessam, Harram-Mekkah"}};
    OptionButton CorwynAthan{fraOther, "CorwynAthan", {.caption = "Corwyn, Harram-Madinah"}};
    OptionButton VarnelAthan{fraOther, "VarnelAthan", {.caption = "Varnel, Harram-Mekkah"}};
    OptionButton optCustomAll{fraOther, "optCustomAll", {.caption = "Custom File"}};
    Label lblCustomOther{fraOther, "lblCustomOther"};

    ControlArray<CommandButton> cmdBrowse{
        *this, "cmdBrowse", {{0, {.caption = "Browse"}}, {1, {.caption = "Browse"}}}};

    /// Listen, pause and stop: 1 to 3 for the other prayers, 4 to 6 for Fajr.
    ControlArray<CommandButton> Picture_{
        *this,
        "Picture_",
        {{1, {.caption = "Listen", .toolTipText = "Listen to athan"}},
         {2, {.caption = "Pause", .toolTipText = "Pause athan"}},
         {3, {.caption = "Stop", .toolTipText = "Stop athan"}},
         {4, {.caption = "Listen", .toolTipText = "Listen to athan"}},
         {5, {.caption = "Pause", .toolTipText = "Pause athan"}},
         {6, {.caption = "Stop", .toolTipText = "Stop athan"}}}};

    CommandButton cmdReminders{
        *this,
        "cmdReminders",
        {.caption = "Athan and &Reminders\u2026",
         .toolTipText = "A sound and a volume for each prayer, reminders, iqama and quiet hours"}};
    CommandButton cmdClose{*this, "cmdClose", {.caption = "&Close"}};
    CommandButton AthanSettingSet{
        *this, "AthanSettingSet", {.caption = "&Save", .toolTipText = "Save the Athan setting"}};
    CommandButton AthanSettingHelp{*this, "AthanSettingHelp", {.caption = "&Help"}};
};

inline const FormInstance<FrmAthan> frmAthan;

}  // namespace horavex
