#pragma once

#include <string>

#include "base/bytes.h"
#include "linux/descriptor.h"

namespace horavex {

/// Writes all bytes, however many calls it takes. Throws FileFault with the path.
void WriteAll(const Descriptor& file, ByteView bytes, const std::string& path);

}  // namespace horavex
