#include "athan/sound_tools.h"

#include <utility>

#include "base/program_state.h"
#include "platform/platform.h"

namespace horavex {

namespace {

SoundTools installed;

const ProgramStateReset reset([] { installed = {}; });

}  // namespace

void InstallSoundTools(SoundTools tools) {
    installed = std::move(tools);
}

SoundKind KindOfSound(const std::string& path) {
    return installed.kindOf ? installed.kindOf(path) : SoundKind::kByContent;
}

Bytes PlayableByAnyName(const std::string& path) {
    const bool reencoded = KindOfSound(path) == SoundKind::kByEnding && installed.reencode;
    return reencoded ? installed.reencode(path) : ReadWhole(Ports().files, path, kLargestSound);
}

}  // namespace horavex
