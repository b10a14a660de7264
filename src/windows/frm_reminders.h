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

/// What sounds and shows at each prayer, before it and after it. Members of arrays are numbered as
/// the prayers; sunrise, number 1, has a reminder alone. Labels that begin with lblShown say what
/// the controls beside them stand for. The bars of the quiet hours stand for five minutes a step.
class RemindersForm : public Form {
public:
    RemindersForm();
    ~RemindersForm() override;

    horavex::Frame fraPrayers{*this, "fraPrayers", {.caption = "Each prayer"}};
    Label lblSound{fraPrayers, "lblSound", {.caption = "Sound"}};
    Label lblVolume{fraPrayers, "lblVolume", {.caption = "Volume"}};
    Label lblReminder{fraPrayers, "lblReminder", {.caption = "Reminder before"}};
    Label lblIqama{fraPrayers, "lblIqama", {.caption = "Iqama after"}};
    ControlArray<Label> lblPrayer{fraPrayers, "lblPrayer", PrayerLabels(kPrayerKeys)};
    ControlArray<CheckBox> chkAthan{fraPrayers, "chkAthan",
                                    EachWithAthan<CheckBox>({.caption = "Athan"})};
    ControlArray<ComboBox> cboSound{fraPrayers, "cboSound",
                                    EachWithAthan<ComboBox>({.typed = false})};
    ControlArray<ScrollBar> hsVolume{fraPrayers, "hsVolume",
                                     EachWithAthan<ScrollBar>({.max = 100, .largeStep = 10})};
    ControlArray<Label> lblShownVolume{fraPrayers, "lblShownVolume", EachWithAthan<Label>({})};
    ControlArray<CommandButton> cmdListen{
        fraPrayers, "cmdListen",
        EachWithAthan<CommandButton>(
            {.caption = "Listen", .toolTipText = "Plays this sound as it will be heard"})};
    ControlArray<ScrollBar> hsReminder{fraPrayers, "hsReminder",
                                       Each<ScrollBar>({.max = 60, .largeStep = 5})};
    ControlArray<Label> lblShownReminder{fraPrayers, "lblShownReminder", Each<Label>({})};
    ControlArray<ScrollBar> hsIqama{fraPrayers, "hsIqama",
                                    EachWithAthan<ScrollBar>({.max = 60, .largeStep = 5})};
    ControlArray<Label> lblShownIqama{fraPrayers, "lblShownIqama", EachWithAthan<Label>({})};

    /// Says that the settings keep every athan silent; on view only where they do.
    Label lblShownMuted{fraPrayers, "lblShownMuted", {.visible = false}};

    horavex::Frame fraAll{*this, "fraAll", {.caption = "For every prayer"}};
    Label lblAllVolume{fraAll, "lblAllVolume", {.caption = "Overall volume"}};
    ScrollBar hsAllVolume{fraAll, "hsAllVolume", {.max = 100, .largeStep = 10}};
    Label lblShownAllVolume{fraAll, "lblShownAllVolume"};
    Label lblFade{fraAll, "lblFade", {.caption = "Full volume"}};
    ScrollBar hsFade{fraAll, "hsFade", {.max = 60, .largeStep = 5}};
    Label lblShownFade{fraAll, "lblShownFade"};
    Label lblDevice{fraAll, "lblDevice", {.caption = "Output device"}};
    ComboBox cboDevice{fraAll, "cboDevice", {.typed = false}};
    CommandButton cmdTestTone{
        fraAll,
        "cmdTestTone",
        {.caption = "&Test tone", .toolTipText = "Plays a short tone on this device"}};
    CommandButton cmdStop{
        fraAll, "cmdStop", {.caption = "&Stop", .toolTipText = "Stops what is being played"}};
    Label lblShownSound{fraAll, "lblShownSound"};

    horavex::Frame fraQuiet{*this, "fraQuiet", {.caption = "Quiet hours"}};
    CheckBox chkQuiet{fraQuiet,
                      "chkQuiet",
                      {.caption = "Keep quiet every day",
                       .toolTipText = "Prayers in these hours come as silent notifications"}};
    Label lblQuietFrom{fraQuiet, "lblQuietFrom", {.caption = "From"}};
    ScrollBar hsQuietFrom{fraQuiet, "hsQuietFrom", {.max = 287, .largeStep = 12}};
    Label lblShownQuietFrom{fraQuiet, "lblShownQuietFrom"};
    Label lblQuietTo{fraQuiet, "lblQuietTo", {.caption = "To"}};
    ScrollBar hsQuietTo{fraQuiet, "hsQuietTo", {.max = 287, .largeStep = 12}};
    Label lblShownQuietTo{fraQuiet, "lblShownQuietTo"};

    horavex::Frame fraSignals{*this, "fraSignals", {.caption = "Signals"}};
    Label lblShow{fraSignals, "lblShow", {.caption = "An athan shows"}};
    ComboBox cboShow{fraSignals, "cboShow", {.typed = false}};
    Label lblReminderSignal{fraSignals, "lblReminderSignal", {.caption = "A reminder gives"}};
    ComboBox cboReminderSignal{fraSignals, "cboReminderSignal", {.typed = false}};
    Label lblIqamaSignal{fraSignals, "lblIqamaSignal", {.caption = "An iqama gives"}};
    ComboBox cboIqamaSignal{fraSignals, "cboIqamaSignal", {.typed = false}};
    Label lblSilent{fraSignals, "lblSilent", {.caption = "A silent window closes"}};
    ScrollBar hsSilent{fraSignals, "hsSilent", {.max = 120, .largeStep = 10}};
    Label lblShownSilent{fraSignals, "lblShownSilent"};
    CheckBox chkOnce{fraSignals,
                     "chkOnce",
                     {.caption = "Call each prayer once",
                      .toolTipText = "Without it an athan that is stopped in the first ten "
                                     "seconds comes again"}};
    CheckBox chkPausePlayers{fraSignals,
                             "chkPausePlayers",
                             {.caption = "Pause other players during an athan",
                              .toolTipText = "Music and films that were playing go on afterwards"}};
    CheckBox chkTellMissed{
        fraSignals,
        "chkTellMissed",
        {.caption = "Report prayers missed during sleep",
         .toolTipText = "When the computer wakes up within an hour after the prayer, a silent "
                        "notification names it"}};
    CheckBox chkAlarm{fraSignals,
                      "chkAlarm",
                      {.caption = "The daily alarm",
                       .toolTipText = "Without it the alarm neither shows nor beeps"}};

    CommandButton cmdReset{
        *this,
        "cmdReset",
        {.caption = "&Reset", .toolTipText = "Undoes every choice made in this window"}};
    CommandButton cmdOK{*this, "cmdOK", {.caption = "&OK"}};
    CommandButton cmdCancel{*this, "cmdCancel", {.caption = "&Cancel"}};

private:
    /// A member for each prayer, sunrise included or left out.
    template <class Control>
    static std::vector<typename ControlArray<Control>::Member> Each(const ControlValues& values) {
        return {{kFajr, values}, {kShurooq, values}, {kZuhr, values},
                {kAsr, values},  {kMaghrib, values}, {kIsha, values}};
    }
    template <class Control>
    static std::vector<typename ControlArray<Control>::Member> EachWithAthan(
        const ControlValues& values) {
        return {
            {kFajr, values}, {kZuhr, values}, {kAsr, values}, {kMaghrib, values}, {kIsha, values}};
    }
};

inline const FormInstance<RemindersForm> frmReminders;

}  // namespace horavex
