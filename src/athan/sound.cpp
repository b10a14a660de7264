#include "athan/sound.h"

#include "athan/player.h"
#include "base/fault.h"
#include "base/int16.h"
#include "platform/platform.h"
#include "store/settings_record.h"
#include "windows/horavex_main_form.h"

namespace horavex {

namespace {

/// A sound that is played, and the built-in one that stands in for it.
struct AthanFile {
    const char* played;
    const char* builtIn;
};

constexpr AthanFile kOtherPrayers = {"Athan\\athan.mp3", "Athan\\athan1.mp3"};
constexpr AthanFile kFajrAthan = {"Athan\\fagr_athan.mp3", "Athan\\fagr_athan1.mp3"};

void MakeIfMissing(const AthanFile& file) {
    const ProgramFolder& folder = Ports().programFolder;
    if (folder.Exists(file.builtIn) && !folder.Exists(file.played)) {
        RunStep(
            [&] { folder.WriteWhole(file.played, folder.ReadWhole(file.builtIn, kLargestSound)); });
    }
}

void OfferSound(bool offered) {
    HoravexMainForm->optAthanType(kSoundAthan).SetVisible(offered);
    HoravexMainForm->mnuPopSound.SetVisible(offered);
    HoravexMainForm->mnuSound.SetVisible(offered);
}

}  // namespace

std::string FullPath(const std::string& relativePath) {
    return Ports().programFolder.RealPath(relativePath);
}

void PlayFile(const std::string& path) {
    PlayFileAt(path, {});
}

void PlayFileAt(const std::string& path, const Loudness& loudness) {
    if (Paused != kFalse) {
        PausePlay();
    } else {
        OpenFileForPlay(path, loudness);
    }
}

void StopSound() {
    StopPlay();
}

void PauseSound() {
    PausePlay();
}

std::string ProgramAthanPath(bool isFajr) {
    return FullPath((isFajr ? kFajrAthan : kOtherPrayers).played);
}

void Athan_Sound_Click() {
    PlayFile(ProgramAthanPath(false));
}

void Fagr_Athan_Sound_Click() {
    PlayFile(ProgramAthanPath(true));
}

void CheckAthanFiles() {
    MakeIfMissing(kOtherPrayers);
    MakeIfMissing(kFajrAthan);
    // The sound of Fajr decides alone, whatever has become of the other.
    OfferSound(Ports().programFolder.Exists(kFajrAthan.played));
}

}  // namespace horavex
