#include "athan/prayer_sound.h"

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

bool toneIsOn = false;  // what plays, if anything does, is the tone

const ProgramStateReset reset([] { toneIsOn = false; });

void UseChosenDevice() {
    Ports().audioPlayer.UseDevice(ReadOption(option::kSoundDevice));
}

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
    PlayFileAt(
        PathOfSound(choices, alert == Alert::kFajr),
        LoudnessOf(choices, ReadOption(option::kAthanVolume), ReadOption(option::kAthanFade)));
}

bool PlayTone() {
    if (IsPlaying() || athanActive != kFalse || AthanAwaitsItsSound()) {
        return false;
    }
    UseChosenDevice();
    PlayFileAt(FullPath(kShortTone), {.percent = ReadOption(option::kAthanVolume)});
    toneIsOn = IsPlaying();
    return toneIsOn;
}

void StopTone() {
    if (toneIsOn) {
        toneIsOn = false;
        StopSound();
    }
}

bool IsHeard() {
    return IsPlaying() && Paused == kFalse && Ports().audioPlayer.Trouble().empty();
}

}  // namespace horavex
