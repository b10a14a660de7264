#pragma once

#include "base/bytes.h"

namespace horavex {

/// Undoes (and applies: it is its own inverse) the substitution under which the data files keep
/// their texts: codes 1 to 127 move up by 127, codes 128 to 254 down by 127, 0 and 255 stay. It
/// works on the bytes, before any code page makes them characters.
Bytes DecodeText(ByteView stored);

}  // namespace horavex
