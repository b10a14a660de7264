#include "athan/azan_window.h"
#include "config/settings_window.h"
#include "desktop/shots/scenes.h"
#include "engine/progress_window.h"
#include "store/athan_options.h"
#include "store/settings_record.h"
#include "store/text_table.h"
#include "windows/f_message.h"
#include "windows/frm_athan.h"
#include "windows/frm_azan.h"
#include "windows/frm_main.h"
#include "windows/frm_reminders.h"

namespace horavex {

namespace {

void LookAtAthan(Stage& stage) {
    BringAthanWindowUp(Alert::kMaghrib);
    while (frmAzan->Timer1.Running()) {
        frmAzan->Timer1.Tick();
    }
    stage.Look(*frmAzan);
}

/// As it stands while an athan of sound waits for its file.
void LookAtAthanSettings(Stage& stage) {
    stage.Visit([] { frmMain->mnuAthanSettings.UserClick(); }, *frmAthan,
                [&] {
                    frmAthan->lblCustomFajr.SetCaption(
                        "/home/user/Music/athan/a quiet call for the dawn.ogg");
                    frmAthan->DessamFajr.SetValue(true);
                    frmAthan->optCustomAll.SetValue(true);
                    stage.Look(*frmAthan);
                });
}

void OpenRemindersByMenu() {
    frmMain->mnuReminders.UserClick();
}

void LookAtReminders(Stage& stage) {
    stage.ports.audioPlayer.devices = {{"speakers", "Built-in Audio Analog Stereo"}};
    stage.Visit(OpenRemindersByMenu, *frmReminders);
}

void ChooseMuch(RemindersForm& form) {
    form.cboSound(kFajr).UserSelect(6);
    form.hsVolume(kFajr).UserSlide(40);
    form.chkAthan(kZuhr).UserClick();
    form.cboSound(kIsha).UserSelect(8);
    form.hsReminder(kShurooq).UserSlide(30);
    form.hsIqama(kMaghrib).UserSlide(10);
    form.hsFade.UserSlide(45);
    form.hsSilent.UserSlide(120);
    form.chkQuiet.UserClick();
    form.cboShow.UserSelect(2);
}

/// The file of the first choice is asked for by a dialogue that this program does not draw.
void LookAtChosenReminders(Stage& stage) {
    ActiveSettings.AthanType = 0;
    SaveOption(option::kAthanFiles[kFajr], "/home/user/Music/A muezzin of Cairo, 1952.ogg");
    SaveOption(option::kAthanSounds[kFajr], AthanSound::kFile);
    stage.Visit(OpenRemindersByMenu, *frmReminders, [&] {
        ChooseMuch(*frmReminders);
        stage.Look(*frmReminders);
    });
}

void LookAtProgress(Stage& stage) {
    const auto open = [] {
        ShowProgressWindow(TextItem(TextEntry::kPleaseWait, ActiveSettings.Language),
                           TextItem(TextEntry::kCalculatingYear, ActiveSettings.Language));
        ReportProgress(60.0);
    };
    stage.Visit(open, *fMessage);
}

void LookAtAlarm(Stage& stage) {
    const auto open = [] {
        fMessage->Load();
        fMessage->cmdAlarmClose.SetVisible(true);
        fMessage->Shape1.SetVisible(false);
        fMessage->lblMessage2.SetCaption("06:30 : " +
                                         TextItem(TextEntry::kAlarmIsDue, ActiveSettings.Language));
        fMessage->Show();
    };
    stage.Visit(open, *fMessage);
}

}  // namespace

std::vector<Scene> AthanScenes() {
    return {
        {"athan", LookAtAthan},         {"athan-settings", LookAtAthanSettings},
        {"reminders", LookAtReminders}, {"reminders-chosen", LookAtChosenReminders},
        {"progress", LookAtProgress},   {"alarm", LookAtAlarm},
    };
}

}  // namespace horavex
