#pragma once

#include <optional>
#include <string>

#include "athan/athan_choices.h"

namespace horavex {

// What the window "Athan and Reminders" shows, in the words of the current pack.

/// Fills its lists, the one of output devices with those that are there now and the chosen one.
void FillReminderLists(const AthanChoices& choices);

/// Shows choices in all controls, with what they mean.
void ShowChoices(const AthanChoices& choices);

/// A sound of a prayer's list; the path of the file where that is the sound.
struct ListedSound {
    AthanSound sound;
    std::string file;
};

/// The sound in a row of a prayer's list; none for the row that asks for a file of the user's.
std::optional<ListedSound> SoundInRow(Prayer prayer, int row);

/// Puts a file of the user's into a prayer's list, in place of the former one.
void ListFile(Prayer prayer, const std::string& path);

/// The id of the device in a row of the list.
std::string DeviceInRow(int row);

/// Says below the devices how a try went: nothing, that the tone can be heard, or why no sound can.
void ShowNothingTried();
void ShowToneSounds();
void ShowTrouble(const std::string& reason);

/// Why a file makes no sound.
std::string CannotBePlayed();

/// Title and types of the dialogue that asks for a sound.
std::string ChooseSoundTitle();
std::string SoundFilter();

/// Bars of the quiet hours have whole numbers: of five minutes.
inline constexpr int kQuietStep = 5;

}  // namespace horavex
