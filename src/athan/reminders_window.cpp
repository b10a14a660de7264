#include "athan/reminders_window.h"

#include "athan/athan_choices.h"
#include "athan/bare_samples.h"
#include "athan/reminders_display.h"
#include "athan/sound_tools.h"
#include "athan/sound_trial.h"
#include "base/program_state.h"
#include "forms/edited_values.h"
#include "lang/form_language.h"
#include "platform/platform.h"
#include "windows/frm_athan.h"
#include "windows/frm_main.h"
#include "windows/frm_reminders.h"

namespace horavex {

namespace {

AthanChoices edited;       // what the window shows
bool hoursWereOn = false;  // the quiet ones, as it came up
EditedValues values([] { ShowChoices(edited); });

constexpr int kAllSounds = 1;  // the type of files that the dialogue begins with

const ProgramStateReset reset([] {
    edited = {};
    hoursWereOn = false;
    values.Reset();
});

Prayer PrayerOf(const Control& control) {
    return static_cast<Prayer>(control.Index());
}

/// A file of the user's, which is listed from now on; the former sound stays where none is chosen.
void ChooseFile(Prayer prayer) {
    const std::string path =
        Ports().dialogs.OpenFile({ChooseSoundTitle(), SoundFilter(), kAllSounds});
    if (path.empty() || RefusesBareSamples(path)) {
        return;
    }
    if (KindOfSound(path) == SoundKind::kUnknown) {
        ShowTrouble(CannotBePlayed());
    } else {
        ListFile(prayer, path);
        edited.prayers[prayer].sound = AthanSound::kFile;
        edited.prayers[prayer].file = path;
    }
}

void ChooseSound(Prayer prayer, int row) {
    if (const auto listed = SoundInRow(prayer, row)) {
        edited.prayers[prayer].sound = listed->sound;
        edited.prayers[prayer].file = listed->file;
    } else {
        ChooseFile(prayer);
    }
}

void BindAthans(RemindersForm& form) {
    form.chkAthan.Bind(
        [](CheckBox& box) { values.BindCheck(box, edited.prayers[PrayerOf(box)].athan); });
    form.cboSound.Bind([](ComboBox& list) {
        list.onClick = values.Editing([&list] { ChooseSound(PrayerOf(list), list.ListIndex()); });
    });
    form.hsVolume.Bind(
        [](ScrollBar& bar) { values.BindBar(bar, edited.prayers[PrayerOf(bar)].volume); });
    form.cmdListen.Bind([](CommandButton& button) {
        button.onClick = [&button] { ListenTo(PrayerOf(button), edited); };
    });
}

void BindPrayers(RemindersForm& form) {
    BindAthans(form);
    form.hsReminder.Bind(
        [](ScrollBar& bar) { values.BindBar(bar, edited.prayers[PrayerOf(bar)].reminder); });
    form.hsIqama.Bind(
        [](ScrollBar& bar) { values.BindBar(bar, edited.prayers[PrayerOf(bar)].iqama); });
}

void BindForAll(RemindersForm& form) {
    values.BindBar(form.hsAllVolume, edited.volume);
    values.BindBar(form.hsFade, edited.fadeSeconds);
    form.cboDevice.onClick =
        values.Editing([] { edited.device = DeviceInRow(frmReminders->cboDevice.ListIndex()); });
    form.cmdTestTone.onClick = [] { TestTone(edited); };
    form.cmdStop.onClick = StopTrial;
}

void BindSignals(RemindersForm& form) {
    values.BindChoice(form.cboShow, edited.shown);
    values.BindChoice(form.cboReminderSignal, edited.reminderSignal);
    values.BindChoice(form.cboIqamaSignal, edited.iqamaSignal);
    values.BindBar(form.hsSilent, edited.silentMinutes);
    values.BindCheck(form.chkOnce, edited.once);
    values.BindCheck(form.chkPausePlayers, edited.pausePlayers);
    values.BindCheck(form.chkTellMissed, edited.tellMissed);
    values.BindCheck(form.chkAlarm, edited.alarm);
}

/// A stored minute between two steps stays until its bar is moved.
void BindMinute(ScrollBar& bar, int& minute) {
    bar.onChange = values.Editing([&bar, &minute] { minute = bar.Value() * kQuietStep; });
    bar.onScroll = bar.onChange;
}

void BindQuietHours(RemindersForm& form) {
    values.BindCheck(form.chkQuiet, edited.quietHours.on);
    BindMinute(form.hsQuietFrom, edited.quietHours.from);
    BindMinute(form.hsQuietTo, edited.quietHours.to);
}

void frmReminders_Load() {
    TranslateOnLoad(*frmReminders);
    edited = ReadAthanChoices();
    hoursWereOn = edited.quietHours.on;
    FillReminderLists(edited);
    values.Show();
}

/// The icon's menu switches the quiet hours, too: that stays unless the window has been told
/// otherwise.
void cmdOK_Click() {
    if (edited.quietHours.on == hoursWereOn) {
        edited.quietHours.on = ReadQuietHours().on;
    }
    SaveAthanChoices(edited);
    frmReminders->Unload();
}

void BindButtons(RemindersForm& form) {
    form.cmdReset.onClick = values.Editing([] { edited = {}; });
    form.cmdOK.onClick = cmdOK_Click;
    form.cmdCancel.onClick = [] { frmReminders->Unload(); };
}

}  // namespace

void OpenReminders(Form& owner) {
    frmReminders->ShowModal(&owner);
}

void BindRemindersWindow() {
    RemindersForm& form = *frmReminders;
    BindPrayers(form);
    BindForAll(form);
    BindQuietHours(form);
    BindSignals(form);
    BindButtons(form);
    BindSoundTrial();
    form.onLoad = frmReminders_Load;
    form.onUnload = EndTrial;
    frmMain->mnuReminders.onClick = [] { OpenReminders(*frmMain); };
    frmMain->mnuPopReminders.onClick = [] { OpenReminders(*frmMain); };
    frmAthan->cmdReminders.onClick = [] { OpenReminders(*frmAthan); };
}

}  // namespace horavex
