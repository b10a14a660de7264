#include "athan/sound.h"

#include "athan/player.h"
#include "base/flag.h"
#include "platform/platform.h"

namespace horavex {

std::string FullPath(const std::string& relativePath) {
    return Ports().programFolder.RealPath(relativePath);
}

void PlayFile(const std::string& path) {
    if (Paused != kFalse) {
        PausePlay();
    } else {
        OpenFileForPlay(path);
    }
}

void StopSound() {
    StopPlay();
}

void PauseSound() {
    PausePlay();
}

void Athan_Sound_Click() {
    PlayFile(FullPath("Athan\\athan.mp3"));
}

void Fagr_Athan_Sound_Click() {
    PlayFile(FullPath("Athan\\fagr_athan.mp3"));
}

}  // namespace horavex
