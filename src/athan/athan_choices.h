#pragma once

#include <array>
#include <string>

#include "base/prayers.h"
#include "store/athan_options.h"

namespace horavex {

/// What users choose for one prayer. Of sunrise the reminder alone counts.
struct PrayerChoices {
    bool athan = true;
    AthanSound sound = AthanSound::kProgram;
    std::string file;  // full path, where the sound is the user's file
    int volume = 100;  // percent of the volume over all
    int reminder = 0;  // minutes before; 0 for none
    int iqama = 0;     // minutes after; 0 for none

    bool operator==(const PrayerChoices&) const = default;
};

/// The hours of the day that are quiet, in minutes of the day; over midnight where the end is the
/// smaller one, never where both are the same.
struct QuietHours {
    bool on = false;
    int from = option::kQuietFrom.base;
    int to = option::kQuietTo.base;

    bool operator==(const QuietHours&) const = default;
};

/// All options of the athan as values: what the window "Athan and Reminders" edits.
struct AthanChoices {
    std::array<PrayerChoices, kPrayerCount> prayers{};
    Signal reminderSignal = Signal::kNotification;
    Signal iqamaSignal = Signal::kNotification;
    int volume = 100;  // percent
    int fadeSeconds = 0;
    std::string device;  // the sound server's name; empty for the default one
    AthanShown shown = AthanShown::kWindow;
    bool once = false;
    int silentMinutes = 0;  // 0: a window without a sound waits for the user
    bool pausePlayers = false;
    bool tellMissed = false;
    bool alarm = true;  // the daily one
    QuietHours quietHours;

    bool operator==(const AthanChoices&) const = default;
};

/// The stored ones.
PrayerChoices ReadPrayerChoices(Prayer prayer);
QuietHours ReadQuietHours();
AthanChoices ReadAthanChoices();

/// Stores them. Where nothing changes nothing is written, and what changes nothing by itself
/// becomes absent. Throws BoundsFault for a value outside the range of its option.
void SaveAthanChoices(const AthanChoices& choices);

}  // namespace horavex
