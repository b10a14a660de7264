#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "platform/memory_files.h"
#include "store/city_search.h"

namespace horavex {

// What tools need that look at the cities of a program folder one by one.

/// The location files and the published months of a program folder, under "/program". Throws
/// OpenFault where one is missing.
void ReadProgramFolder(const std::string& folder, MemoryFiles& files);

/// How many cities a walk goes on at a time, from a typed text. Throws BoundsFault below 1.
std::size_t StepOf(const std::string& text);

}  // namespace horavex
