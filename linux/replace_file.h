#pragma once

#include <string>

#include "base/bytes.h"

namespace horavex {

/// Replaces or makes the whole file so that the old or the new one is there whatever happens,
/// a power cut included: the bytes go to a temporary name in the same folder, to the disk, and
/// onto the name. Missing folders are made. Throws FileFault, and leaves no temporary name.
void ReplaceFile(const std::string& path, ByteView bytes);

}  // namespace horavex
