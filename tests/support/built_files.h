#pragma once

#include "platform/memory_files.h"

namespace horavex {

/// The program folder as CopyBuiltProgramFolder makes it, read from the disk once: copies share
/// what they do not write.
const MemoryFiles& BuiltFiles();

}  // namespace horavex
