#include "athan/chosen_sound.h"

#include <array>

#include "athan/sound.h"
#include "platform/platform.h"

namespace horavex {

namespace {

constexpr int kWhole = 100;  // percent

/// By AthanSound; empty for what is no file of the program.
constexpr std::array<const char*, 9> kProgramFiles = {"",
                                                      "Athan\\athan1.mp3",
                                                      "Athan\\athan2.mp3",
                                                      "Athan\\athan3.mp3",
                                                      "Athan\\fagr_athan1.mp3",
                                                      "Athan\\fagr_athan2.mp3",
                                                      "",
                                                      kShortTone,
                                                      ""};

}  // namespace

std::string PathOfSound(const PrayerChoices& choices, bool isFajr) {
    const std::string name = kProgramFiles.at(static_cast<std::size_t>(choices.sound));
    const std::string path = name.empty() ? choices.file : FullPath(name);
    const bool isThere = choices.sound != AthanSound::kProgram && Ports().files.Exists(path);
    return isThere ? path : ProgramAthanPath(isFajr);
}

Loudness LoudnessOf(const PrayerChoices& choices, int volumeOverAll, int fadeSeconds) {
    return {.percent = volumeOverAll * choices.volume / kWhole, .fadeSeconds = fadeSeconds};
}

}  // namespace horavex
