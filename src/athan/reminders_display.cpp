#include "athan/reminders_display.h"

#include <algorithm>
#include <vector>

#include "base/program_state.h"
#include "lang/filled_text.h"
#include "lang/language_pack.h"
#include "platform/platform.h"
#include "platform/sound_trouble.h"
#include "store/settings_record.h"
#include "windows/frm_reminders.h"

namespace horavex {

namespace {

std::vector<SoundDevice> devices;                  // as the list has them
std::array<std::string, kPrayerCount> ownFiles{};  // that the lists of sounds have; empty for none

const ProgramStateReset reset([] {
    devices.clear();
    ownFiles = {};
});

constexpr double kMinutesPerDay = 1440.0;

std::string Word(const char* key, const char* english) {
    return GetLangString("reminders", key, english);
}

std::string PercentText(int percent) {
    return FilledText(Word("Percent", "{percent}%"), "{percent}", std::to_string(percent));
}

/// Minutes before or after a prayer.
std::string MinutesText(int minutes) {
    const std::string text = GetLangString("adjustments", "Minutes", "{minutes} min");
    return minutes == 0 ? Word("None", "none")
                        : FilledText(text, "{minutes}", std::to_string(minutes));
}

std::string FadeText(int seconds) {
    return seconds == 0 ? Word("AtOnce", "at once")
                        : FilledText(Word("Seconds", "after {seconds} s"), "{seconds}",
                                     std::to_string(seconds));
}

std::string SilenceText(int minutes) {
    return minutes == 0 ? Word("Never", "never")
                        : FilledText(Word("SilentMinutes", "after {minutes} min"), "{minutes}",
                                     std::to_string(minutes));
}

std::string ClockText(int minuteOfDay) {
    return Ports().formats.MediumTime(minuteOfDay / kMinutesPerDay);
}

// Reasons for silence.

struct Reason {
    const char* said;  // by the player
    const char* key;
};

constexpr Reason kReasons[] = {{sound_trouble::kNoServer, "NoServer"},
                               {sound_trouble::kNoDevice, "NoDevice"},
                               {sound_trouble::kMutedDevice, "MutedDevice"},
                               {sound_trouble::kMutedProgram, "MutedProgram"},
                               {sound_trouble::kFormat, "NoFormat"}};

/// In the pack's language.
std::string InWords(const std::string& reason) {
    for (const auto& [said, key] : kReasons) {
        if (reason == said) {
            return Word(key, said);
        }
    }
    return reason;
}

// Sounds.

std::string SoundName(AthanSound sound) {
    switch (sound) {
        case AthanSound::kProgram:
            return Word("AsInSettings", "As in \"Athan Settings\"");
        case AthanSound::kAthan1:
            return Word("Athan1", "Reed flute");
        case AthanSound::kAthan2:
            return Word("Athan2", "Oud");
        case AthanSound::kAthan3:
            return Word("Athan3", "Short chime");
        case AthanSound::kFajrAthan1:
            return Word("FajrAthan1", "Voices before dawn");
        case AthanSound::kFajrAthan2:
            return Word("FajrAthan2", "Santur at dawn");
        case AthanSound::kTone:
            return Word("Tone", "Short tone");
        case AthanSound::kFile:
        case AthanSound::kNone:
            break;
    }
    return Word("NoSound", "No sound");
}

/// The rows of a prayer's list. Behind the built-in sounds stands the file of the user's, if there
/// is one. The row that asks for another is the last: arrow keys pass over it on their way nowhere.
std::vector<std::optional<AthanSound>> SoundRows(std::size_t prayer) {
    std::vector<std::optional<AthanSound>> rows = {
        AthanSound::kProgram, AthanSound::kAthan1,     AthanSound::kAthan2,
        AthanSound::kAthan3,  AthanSound::kFajrAthan1, AthanSound::kFajrAthan2};
    if (!ownFiles[prayer].empty()) {
        rows.emplace_back(AthanSound::kFile);
    }
    rows.insert(rows.end(), {AthanSound::kTone, AthanSound::kNone, std::nullopt});
    return rows;
}

std::string RowText(const std::optional<AthanSound>& row, const std::string& ownFile) {
    if (!row) {
        return Word("OwnFile", "Own file\u2026");
    }
    return *row == AthanSound::kFile ? ownFile.substr(ownFile.rfind('/') + 1) : SoundName(*row);
}

void FillSounds(std::size_t prayer) {
    ComboBox& list = frmReminders->cboSound(static_cast<int>(prayer));
    list.Clear();
    for (const auto& row : SoundRows(prayer)) {
        list.AddItem(RowText(row, ownFiles[prayer]));
    }
}

void ShowSound(std::size_t prayer, const PrayerChoices& choices) {
    const auto rows = SoundRows(prayer);
    const auto found = std::ranges::find(rows, choices.sound);
    ComboBox& list = frmReminders->cboSound(static_cast<int>(prayer));
    list.SetListIndex(found == rows.end() ? -1 : static_cast<int>(found - rows.begin()));
    list.SetToolTipText(choices.sound == AthanSound::kFile ? choices.file : "");
    list.SetEnabled(choices.athan);
}

// Prayers.

void ShowBar(ScrollBar& bar, Label& label, int value, const std::string& text) {
    bar.SetValue(value);
    label.SetCaption(text);
}

void ShowReminder(int index, const PrayerChoices& choices) {
    ShowBar(frmReminders->hsReminder(index), frmReminders->lblShownReminder(index),
            choices.reminder, MinutesText(choices.reminder));
}

void ShowAthan(int index, const PrayerChoices& choices) {
    RemindersForm& form = *frmReminders;
    const bool sounds = choices.athan && choices.sound != AthanSound::kNone;
    form.chkAthan(index).SetValue(choices.athan ? 1 : 0);
    ShowBar(form.hsVolume(index), form.lblShownVolume(index), choices.volume,
            PercentText(choices.volume));
    form.hsVolume(index).SetEnabled(sounds);
    form.cmdListen(index).SetEnabled(sounds);
    ShowBar(form.hsIqama(index), form.lblShownIqama(index), choices.iqama,
            MinutesText(choices.iqama));
}

void ShowPrayers(const AthanChoices& choices) {
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        const int index = static_cast<int>(prayer);
        ShowReminder(index, choices.prayers[prayer]);
        if (prayer != kShurooq) {
            ShowSound(prayer, choices.prayers[prayer]);
            ShowAthan(index, choices.prayers[prayer]);
        }
    }
    frmReminders->lblShownMuted.SetVisible(ActiveSettings.AthanType != kSoundAthan);
}

// All prayers.

/// The default one first, and last the chosen one where it is not there.
void FillDevices(const std::string& chosen) {
    devices = Ports().audioPlayer.Devices();
    devices.insert(devices.begin(), {"", Word("DefaultDevice", "Default device")});
    if (std::ranges::count(devices, chosen, &SoundDevice::id) == 0) {
        const std::string text = Word("NotConnected", "{device} (not connected)");
        devices.push_back({chosen, FilledText(text, "{device}", chosen)});
    }
    frmReminders->cboDevice.Clear();
    for (const SoundDevice& device : devices) {
        frmReminders->cboDevice.AddItem(device.name);
    }
}

int RowOfDevice(const std::string& id) {
    return static_cast<int>(std::ranges::find(devices, id, &SoundDevice::id) - devices.begin());
}

void ShowForAll(const AthanChoices& choices) {
    RemindersForm& form = *frmReminders;
    ShowBar(form.hsAllVolume, form.lblShownAllVolume, choices.volume, PercentText(choices.volume));
    ShowBar(form.hsFade, form.lblShownFade, choices.fadeSeconds, FadeText(choices.fadeSeconds));
    form.cboDevice.SetListIndex(RowOfDevice(choices.device));
}

void ShowSignals(const AthanChoices& choices) {
    RemindersForm& form = *frmReminders;
    form.cboShow.SetListIndex(static_cast<int>(choices.shown));
    form.cboReminderSignal.SetListIndex(static_cast<int>(choices.reminderSignal));
    form.cboIqamaSignal.SetListIndex(static_cast<int>(choices.iqamaSignal));
    ShowBar(form.hsSilent, form.lblShownSilent, choices.silentMinutes,
            SilenceText(choices.silentMinutes));
    form.chkOnce.SetValue(choices.once ? 1 : 0);
    form.chkPausePlayers.SetValue(choices.pausePlayers ? 1 : 0);
    form.chkTellMissed.SetValue(choices.tellMissed ? 1 : 0);
    form.chkAlarm.SetValue(choices.alarm ? 1 : 0);
}

void ShowQuietHours(const QuietHours& hours) {
    RemindersForm& form = *frmReminders;
    form.chkQuiet.SetValue(hours.on ? 1 : 0);
    ShowBar(form.hsQuietFrom, form.lblShownQuietFrom, hours.from / kQuietStep,
            ClockText(hours.from));
    ShowBar(form.hsQuietTo, form.lblShownQuietTo, hours.to / kQuietStep, ClockText(hours.to));
    form.hsQuietFrom.SetEnabled(hours.on);
    form.hsQuietTo.SetEnabled(hours.on);
}

void FillSignals(ComboBox& list) {
    list.Clear();
    list.AddItem(Word("Notification", "a notification"));
    list.AddItem(Word("ShortTone", "a short tone"));
    list.AddItem(Word("Both", "both"));
    list.AddItem(Word("Nothing", "nothing"));
}

void FillWaysToShow(ComboBox& list) {
    list.Clear();
    list.AddItem(Word("Window", "its window"));
    list.AddItem(Word("WindowAndNotification", "its window and a notification"));
    list.AddItem(Word("NotificationWhileBusy", "a notification while you are busy"));
    list.AddItem(Word("NotificationAlone", "a notification, no window"));
    list.SetToolTipText(Word("BusyHint",
                             "You count as busy while something fills the screen or \"Do not "
                             "disturb\" is on. Otherwise the window rises."));
}

}  // namespace

void FillReminderLists(const AthanChoices& choices) {
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        ownFiles[prayer] = choices.prayers[prayer].file;
        if (prayer != kShurooq) {
            FillSounds(prayer);
        }
    }
    FillDevices(choices.device);
    FillWaysToShow(frmReminders->cboShow);
    FillSignals(frmReminders->cboReminderSignal);
    FillSignals(frmReminders->cboIqamaSignal);
    frmReminders->lblShownMuted.SetCaption(
        Word("Muted", "\"Sound\" is not chosen in the settings: every athan is silent."));
}

void ShowChoices(const AthanChoices& choices) {
    ShowPrayers(choices);
    ShowForAll(choices);
    ShowQuietHours(choices.quietHours);
    ShowSignals(choices);
}

std::optional<ListedSound> SoundInRow(Prayer prayer, int row) {
    const auto sound = SoundRows(prayer).at(static_cast<std::size_t>(row));
    if (!sound) {
        return std::nullopt;
    }
    return ListedSound{*sound, *sound == AthanSound::kFile ? ownFiles[prayer] : ""};
}

void ListFile(Prayer prayer, const std::string& path) {
    ownFiles[prayer] = path;
    FillSounds(prayer);
}

std::string DeviceInRow(int row) {
    return devices.at(static_cast<std::size_t>(row)).id;
}

void ShowNothingTried() {
    frmReminders->lblShownSound.SetCaption("");
}

void ShowToneSounds() {
    frmReminders->lblShownSound.SetCaption(Word("ToneSounds", "You should hear a tone now."));
}

void ShowTrouble(const std::string& reason) {
    frmReminders->lblShownSound.SetCaption(
        FilledText(Word("Trouble", "No sound: {reason}"), "{reason}", InWords(reason)));
}

std::string CannotBePlayed() {
    return Word("CannotBePlayed", "this file cannot be played");
}

std::string ChooseSoundTitle() {
    return Word("ChooseSound", "Choose a sound");
}

std::string SoundFilter() {
    return Word("SoundFiles", "Sounds") +
           "|*.wav;*.mp3;*.mp2;*.ogg;*.oga;*.opus;*.flac;*.aiff;*.aif;*.au;*.w64;*.caf;*.vox;*."
           "gsm|" +
           Word("AllFiles", "All files") + "|*|";
}

}  // namespace horavex
