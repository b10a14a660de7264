#include "athan/prayer_sound.h"

#include <array>
#include <string>

#include "athan/athan_alert.h"
#include "athan/athan_choices.h"
#include "athan/athan_state.h"
#include "athan/player.h"
#include "athan/sound.h"
#include "base/int16.h"
#include "base/program_state.h"
#include "platform/platform.h"

namespace horavex {

namespace {

constexpr const char* kToneFile = "Athan\\tone.mp3";

bool toneIsOn = false;  // what plays, if anything does, is the tone

const ProgramStateReset reset([] { toneIsOn = false; });

/// By AthanSound; empty for what is no file of the program.
constexpr std::array<const char*, 9> kProgramFiles = {"",
                                                      "Athan\\athan1.mp3",
                                                      "Athan\\athan2.mp3",
                                                      "Athan\\athan3.mp3",
                                                      "Athan\\fagr_athan1.mp3",
                                                      "Athan\\fagr_athan2.mp3",
                                                      "",
                                                      kToneFile,
                                                      ""};

/// Empty for the program's own sound.
std::string ChosenPath(const PrayerChoices& choices) {
    const std::string name = kProgramFiles.at(static_cast<std::size_t>(choices.sound));
    const std::string path = name.empty() ? choices.file : FullPath(name);
    const bool isFile = choices.sound != AthanSound::kProgram && Ports().files.Exists(path);
    return isFile ? path : std::string();
}

int PercentOf(int volume) {
    return ReadOption(option::kAthanVolume) * volume / 100;
}

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
    const std::string path = ChosenPath(choices);
    const Loudness loudness = {PercentOf(choices.volume), ReadOption(option::kAthanFade)};
    if (path.empty()) {
        PlayFileAt(ProgramAthanPath(alert == Alert::kFajr), loudness);
    } else {
        PlayFileAt(path, loudness);
    }
}

bool PlayTone() {
    if (IsPlaying() || athanActive != kFalse || AthanAwaitsItsSound()) {
        return false;
    }
    UseChosenDevice();
    PlayFileAt(FullPath(kToneFile), {PercentOf(100), 0});
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
