#pragma once

#include <string>

#include "base/bytes.h"
#include "platform/audio_file.h"

namespace horavex {

/// What tells the format of a file, by its real path.
SoundKind KindOfSoundFile(const std::string& path);

/// The sound of a file as FLAC of 16 bits. Throws FileFault where it cannot be read.
Bytes FlacOf(const std::string& path);

}  // namespace horavex
