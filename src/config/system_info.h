#pragma once

#include <cstdint>
#include <string>

namespace horavex {

/// Starts a tool that tells about the machine: the one that the registry names, or else the
/// desktop's own. A message tells where there is none, and where anything fails.
void StartSysInfo();

/// Reads one text value of the registry; -1 on success, 0 with an empty text otherwise. The key
/// is opened with all rights although it is only read, so that a user without them finds nothing.
/// A text of 1024 bytes or more does not fit.
std::int16_t GetKeyValue(std::int32_t root, const std::string& keyName,
                         const std::string& valueName, std::string& text);

}  // namespace horavex
