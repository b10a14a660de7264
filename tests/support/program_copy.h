#pragma once

#include "platform/memory_files.h"

namespace horavex {

/// Copies the program folder that was compiled from data/ to "/program" in memory.
void CopyBuiltProgramFolder(MemoryFiles& files);

}  // namespace horavex
