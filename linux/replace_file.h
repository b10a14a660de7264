#pragma once

#include <string>

#include "base/bytes.h"

namespace horavex {

/// Replaces or makes the whole file so that the old or the new one is there whatever happens,
/// a power cut included: the bytes go to a temporary name in the same folder, to the disk, and
/// onto the name. Missing folders are made, for the user alone. Throws FileFault, and leaves no
/// temporary name; what is there and is no regular file stays.
void ReplaceFile(const std::string& path, ByteView bytes);

}  // namespace horavex
