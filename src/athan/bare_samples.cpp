#include "athan/bare_samples.h"

#include "athan/sound_tools.h"
#include "lang/language_pack.h"
#include "platform/platform.h"

namespace horavex {

bool RefusesBareSamples(const std::string& path) {
    if (KindOfSound(path) != SoundKind::kBareSamples) {
        return false;
    }
    Ports().dialogs.ShowMessage(
        GetLangString(
            "desktop", "BareSamples",
            "This file holds bare samples, and nothing tells their rate and format. Convert it "
            "to WAV, FLAC, Ogg or MP3 with a sound editor, and choose the new file."),
        "", MessageIcon::kExclamation);
    return true;
}

}  // namespace horavex
