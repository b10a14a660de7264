#pragma once

#include "store/options.h"

namespace horavex {

/// What sounds when a prayer arrives.
enum class AthanSound : std::size_t {
    kProgram,  // the working copy that the window "Athan Settings" fills
    kAthan1,
    kAthan2,
    kAthan3,
    kFajrAthan1,
    kFajrAthan2,
    kFile,  // one of the user's
    kTone,
    kNone
};

/// How a reminder or an iqama makes itself known.
enum class Signal : std::size_t { kNotification, kTone, kBoth, kNone };

/// What an athan shows: the rising window, a notification, or both.
enum class AthanShown : std::size_t {
    kWindow,
    kBoth,
    kNotificationWhileBusy,  // in place of the window while the desktop must not be disturbed
    kNotification
};

namespace option {

// Of a prayer, by its index; sunrise has neither athan nor iqama, and what is stored for it counts
// nowhere.

/// 0: the prayer comes without an athan, by a silent notification.
inline constexpr std::array<WholeOption, 6> kAthans = {{{"Athan Fajr", 0, 1, 1},
                                                        {"Athan Shurooq", 0, 1, 1},
                                                        {"Athan Zuhr", 0, 1, 1},
                                                        {"Athan Asr", 0, 1, 1},
                                                        {"Athan Maghrib", 0, 1, 1},
                                                        {"Athan Isha", 0, 1, 1}}};

inline constexpr std::array<const char*, 9> kSoundWords = {
    "program", "athan1", "athan2", "athan3", "fagr_athan1", "fagr_athan2", "file", "tone", "none"};
inline constexpr std::array<ChoiceOption<AthanSound, 9>, 6> kAthanSounds = {
    {{"Athan Sound Fajr", kSoundWords},
     {"Athan Sound Shurooq", kSoundWords},
     {"Athan Sound Zuhr", kSoundWords},
     {"Athan Sound Asr", kSoundWords},
     {"Athan Sound Maghrib", kSoundWords},
     {"Athan Sound Isha", kSoundWords}}};

/// The full path of the user's file, where that is the sound.
inline constexpr std::array<TextOption, 6> kAthanFiles = {{{"Athan File Fajr"},
                                                           {"Athan File Shurooq"},
                                                           {"Athan File Zuhr"},
                                                           {"Athan File Asr"},
                                                           {"Athan File Maghrib"},
                                                           {"Athan File Isha"}}};

/// Percent of the volume over all.
inline constexpr std::array<WholeOption, 6> kAthanVolumes = {{{"Athan Volume Fajr", 0, 100, 100},
                                                              {"Athan Volume Shurooq", 0, 100, 100},
                                                              {"Athan Volume Zuhr", 0, 100, 100},
                                                              {"Athan Volume Asr", 0, 100, 100},
                                                              {"Athan Volume Maghrib", 0, 100, 100},
                                                              {"Athan Volume Isha", 0, 100, 100}}};

/// Minutes before the prayer, or before sunrise, at which a reminder comes; 0 for none.
inline constexpr std::array<WholeOption, 6> kReminders = {{{"Reminder Fajr", 0, 60, 0},
                                                           {"Reminder Shurooq", 0, 60, 0},
                                                           {"Reminder Zuhr", 0, 60, 0},
                                                           {"Reminder Asr", 0, 60, 0},
                                                           {"Reminder Maghrib", 0, 60, 0},
                                                           {"Reminder Isha", 0, 60, 0}}};

/// Minutes from the prayer to its iqama; 0 for none.
inline constexpr std::array<WholeOption, 6> kIqamas = {{{"Iqama Fajr", 0, 60, 0},
                                                        {"Iqama Shurooq", 0, 60, 0},
                                                        {"Iqama Zuhr", 0, 60, 0},
                                                        {"Iqama Asr", 0, 60, 0},
                                                        {"Iqama Maghrib", 0, 60, 0},
                                                        {"Iqama Isha", 0, 60, 0}}};

// Of them all.

inline constexpr std::array<const char*, 4> kSignalWords = {"notification", "tone", "both", "none"};
inline constexpr ChoiceOption<Signal, 4> kReminderSignal = {"Reminder Signal", kSignalWords};
inline constexpr ChoiceOption<Signal, 4> kIqamaSignal = {"Iqama Signal", kSignalWords};

/// Percent, of every sound of a prayer.
inline constexpr WholeOption kAthanVolume = {"Athan Volume", 0, 100, 100};

/// Seconds in which an athan rises from silence.
inline constexpr WholeOption kAthanFade = {"Athan Fade", 0, 60, 0};

/// The sound server's name of the output device; empty for the default one.
inline constexpr TextOption kSoundDevice = {"Sound Device"};

inline constexpr ChoiceOption<AthanShown, 4> kAthanShown = {
    "Athan Shown", {"window", "both", "notification while busy", "notification"}};

/// 1: a prayer comes once, however its athan ends.
inline constexpr WholeOption kAthanOnce = {"Athan Once", 0, 1, 0};

/// Minutes after which a window without a sound closes; it keeps no later athan away then. 0 leaves
/// it to the user.
inline constexpr WholeOption kSilentMinutes = {"Silent Minutes", 0, 120, 0};

/// 1: other players of the session pause while an athan sounds.
inline constexpr WholeOption kPausePlayers = {"Pause Players", 0, 1, 0};

/// 1: after a sleep of the computer a prayer that was missed is told.
inline constexpr WholeOption kTellMissed = {"Tell Missed", 0, 1, 0};

/// 1: the hours of the day between the two minutes of the day are quiet, over midnight where the
/// second is the smaller one.
inline constexpr WholeOption kQuietHours = {"Quiet Hours", 0, 1, 0};
inline constexpr WholeOption kQuietFrom = {"Quiet From", 0, 1439, 22 * 60};
inline constexpr WholeOption kQuietTo = {"Quiet To", 0, 1439, 6 * 60};

/// The local date and time, "2026-11-22 15:12:30", until which it is quiet.
inline constexpr TextOption kQuietUntil = {"Quiet Until"};

}  // namespace option

}  // namespace horavex
