#include "athan/prayer_sound.h"

#include <cstdint>
#include <optional>
#include <utility>

#include "athan/athan_alert.h"
#include "athan/athan_choices.h"
#include "athan/athan_state.h"
#include "athan/chosen_sound.h"
#include "athan/player.h"
#include "athan/sound.h"
#include "base/int16.h"
#include "base/program_state.h"
#include "platform/platform.h"

namespace horavex {

namespace {

/// A tone that was played last.
struct Tone {
    std::uint64_t play;  // which of the player's sounds it is
    std::function<void()> unheard;

    bool IsOn() const { return IsPlaying() && PlayNumber() == play; }
};
std::optional<Tone> tone;

std::uint64_t shortAthan = 0;  // the player's number of the last athan by the short tone

const ProgramStateReset reset([] {
    tone.reset();
    shortAthan = 0;
});

PrayerChoices ChoicesOf(Alert alert) {
    return alert == Alert::kAthanNow ? PrayerChoices()
                                     : ReadPrayerChoices(static_cast<Prayer>(alert));
}

}  // namespace

void PlayPrayerSound(Alert alert) {
    const PrayerChoices choices = ChoicesOf(alert);
    if (choices.sound == AthanSound::kNone) {
        return;
    }
    UseChosenDevice();
    const bool isFajr = alert == Alert::kFajr;
    const Loudness loudness =
        LoudnessOf(choices, ReadOption(option::kAthanVolume), ReadOption(option::kAthanFade));
    PlayFileAt(PathOfSound(choices, isFajr), loudness);
    if (!IsPlaying() && choices.sound != AthanSound::kProgram) {
        PlayFileAt(ProgramAthanPath(isFajr), loudness);
    }
    if (choices.sound == AthanSound::kTone) {
        shortAthan = PlayNumber();
    }
}

bool EndsBeforeItsAthan() {
    return shortAthan != 0 && shortAthan == PlayNumber();
}

void UseChosenDevice() {
    Ports().audioPlayer.UseDevice(ReadOption(option::kSoundDevice));
}

void PlayTone(std::function<void()> unheard) {
    if (IsPlaying() || athanActive != kFalse || AthanAwaitsItsSound()) {
        unheard();
        return;
    }
    UseChosenDevice();
    PlayFileAt(FullPath(kShortTone), {.percent = ReadOption(option::kAthanVolume)});
    if (IsPlaying()) {
        tone = Tone{PlayNumber(), std::move(unheard)};
        WatchTone();
    } else {
        unheard();
    }
}

void WatchTone() {
    if (!tone) {
        return;
    }
    if (tone->IsOn() && !Ports().audioPlayer.Trouble().empty()) {
        const Tone silent = *std::exchange(tone, std::nullopt);
        StopSound();
        silent.unheard();
    } else if (!tone->IsOn()) {
        tone.reset();
    }
}

void StopTone() {
    if (tone && tone->IsOn()) {
        StopSound();
    }
    tone.reset();
}

bool IsHeard() {
    return IsPlaying() && Paused == kFalse && Ports().audioPlayer.Trouble().empty();
}

}  // namespace horavex
