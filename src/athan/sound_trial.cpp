#include "athan/sound_trial.h"

#include <algorithm>
#include <cstdint>
#include <optional>

#include "athan/chosen_sound.h"
#include "athan/player.h"
#include "athan/reminders_display.h"
#include "athan/sound.h"
#include "base/program_state.h"
#include "platform/platform.h"

namespace horavex {

namespace {

constexpr int kTestVolume = 50;  // percent at least: a test that nobody can hear tells nothing

/// What was tried last.
struct Trial {
    std::optional<Prayer> prayer;  // none for the tone
    std::uint64_t play = 0;        // which of the player's sounds it is

    /// It plays still, and nothing has come in its place.
    bool Plays() const { return IsPlaying() && PlayNumber() == play; }
};

std::optional<Trial> trial;

const ProgramStateReset reset([] { trial.reset(); });

void ShowHowItGoes() {
    const std::string trouble = Ports().audioPlayer.Trouble();
    if (!IsPlaying()) {
        ShowTrouble(CannotBePlayed());
    } else if (!trouble.empty()) {
        StopSound();
        ShowTrouble(trouble);
    } else if (!trial->prayer) {
        ShowToneSounds();
    } else {
        ShowNothingTried();
    }
}

/// What pauses is over: a file would resume it.
void Try(std::optional<Prayer> prayer, const std::string& path, const Loudness& loudness,
         const std::string& device) {
    StopSound();
    Ports().audioPlayer.UseDevice(device);
    PlayFileAt(path, loudness);
    trial = Trial{prayer, PlayNumber()};
    ShowHowItGoes();
}

}  // namespace

void ListenTo(Prayer prayer, const AthanChoices& choices) {
    if (trial && trial->prayer == prayer && trial->Plays()) {
        StopSound();
    } else {
        const PrayerChoices& chosen = choices.prayers[prayer];
        Try(prayer, PathOfSound(chosen, prayer == kFajr),
            LoudnessOf(chosen, choices.volume, choices.fadeSeconds), choices.device);
    }
}

void TestTone(const AthanChoices& choices) {
    Try(std::nullopt, FullPath(kShortTone), {.percent = std::max(choices.volume, kTestVolume)},
        choices.device);
}

void WatchTrial() {
    if (trial && trial->Plays() && !Ports().audioPlayer.Trouble().empty()) {
        ShowHowItGoes();
    }
}

void StopTrial() {
    StopSound();
    ShowNothingTried();
}

void EndTrial() {
    if (trial && trial->Plays()) {
        StopSound();
    }
    trial.reset();
    Ports().audioPlayer.UseDevice(ReadOption(option::kSoundDevice));
}

void BindSoundTrial() {
    Ports().audioPlayer.onUnreachable = WatchTrial;
}

}  // namespace horavex
