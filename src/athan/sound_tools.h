#pragma once

#include <functional>
#include <string>

#include "base/bytes.h"
#include "platform/audio_file.h"

namespace horavex {

/// What a front end with a sound library can tell of files by their real paths. Functions that are
/// empty are not there: every file then counts as known by its content.
struct SoundTools {
    std::function<SoundKind(const std::string& path)> kindOf = {};

    /// The same sound as a file whose content tells its format. Throws FileFault.
    std::function<Bytes(const std::string& path)> reencode = {};
};

/// Installs what the front end has.
void InstallSoundTools(SoundTools tools);

SoundKind KindOfSound(const std::string& path);

/// The bytes under which a sound can be played by any name: those of the file, or of the same sound
/// re-encoded where only its ending tells what it is. Throws FileFault.
Bytes PlayableByAnyName(const std::string& path);

}  // namespace horavex
