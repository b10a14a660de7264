#include "athan/athan_choices.h"

#include "store/save_change.h"

namespace horavex {

namespace {

void SavePrayerChoices(std::size_t prayer, const PrayerChoices& choices) {
    const PrayerChoices none;
    SaveChange(option::kAthans[prayer], choices.athan ? 1 : 0, 1);
    SaveChange(option::kAthanSounds[prayer], choices.sound, none.sound);
    SaveChange(option::kAthanFiles[prayer], choices.file, none.file);
    SaveChange(option::kAthanVolumes[prayer], choices.volume, none.volume);
    SaveChange(option::kReminders[prayer], choices.reminder, none.reminder);
    SaveChange(option::kIqamas[prayer], choices.iqama, none.iqama);
}

void SaveQuietHours(const QuietHours& hours) {
    const QuietHours none;
    SaveChange(option::kQuietHours, hours.on ? 1 : 0, 0);
    SaveChange(option::kQuietFrom, hours.from, none.from);
    SaveChange(option::kQuietTo, hours.to, none.to);
}

}  // namespace

PrayerChoices ReadPrayerChoices(Prayer prayer) {
    PrayerChoices choices;
    choices.athan = ReadOption(option::kAthans[prayer]) == 1;
    choices.sound = ReadOption(option::kAthanSounds[prayer]);
    choices.file = ReadOption(option::kAthanFiles[prayer]);
    choices.volume = ReadOption(option::kAthanVolumes[prayer]);
    choices.reminder = ReadOption(option::kReminders[prayer]);
    choices.iqama = ReadOption(option::kIqamas[prayer]);
    return choices;
}

QuietHours ReadQuietHours() {
    return {ReadOption(option::kQuietHours) == 1, ReadOption(option::kQuietFrom),
            ReadOption(option::kQuietTo)};
}

AthanChoices ReadAthanChoices() {
    AthanChoices choices;
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        choices.prayers[prayer] = ReadPrayerChoices(static_cast<Prayer>(prayer));
    }
    choices.reminderSignal = ReadOption(option::kReminderSignal);
    choices.iqamaSignal = ReadOption(option::kIqamaSignal);
    choices.volume = ReadOption(option::kAthanVolume);
    choices.fadeSeconds = ReadOption(option::kAthanFade);
    choices.device = ReadOption(option::kSoundDevice);
    choices.shown = ReadOption(option::kAthanShown);
    choices.once = ReadOption(option::kAthanOnce) == 1;
    choices.silentMinutes = ReadOption(option::kSilentMinutes);
    choices.pausePlayers = ReadOption(option::kPausePlayers) == 1;
    choices.tellMissed = ReadOption(option::kTellMissed) == 1;
    choices.alarm = ReadOption(option::kAlarm) == 1;
    choices.quietHours = ReadQuietHours();
    return choices;
}

void SaveAthanChoices(const AthanChoices& choices) {
    const AthanChoices none;
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        SavePrayerChoices(prayer, choices.prayers[prayer]);
    }
    SaveChange(option::kReminderSignal, choices.reminderSignal, none.reminderSignal);
    SaveChange(option::kIqamaSignal, choices.iqamaSignal, none.iqamaSignal);
    SaveChange(option::kAthanVolume, choices.volume, none.volume);
    SaveChange(option::kAthanFade, choices.fadeSeconds, none.fadeSeconds);
    SaveChange(option::kSoundDevice, choices.device, none.device);
    SaveChange(option::kAthanShown, choices.shown, none.shown);
    SaveChange(option::kAthanOnce, choices.once ? 1 : 0, 0);
    SaveChange(option::kSilentMinutes, choices.silentMinutes, none.silentMinutes);
    SaveChange(option::kPausePlayers, choices.pausePlayers ? 1 : 0, 0);
    SaveChange(option::kTellMissed, choices.tellMissed ? 1 : 0, 0);
    SaveChange(option::kAlarm, choices.alarm ? 1 : 0, 1);
    SaveQuietHours(choices.quietHours);
}

}  // namespace horavex
