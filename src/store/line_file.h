#pragma once

#include <string>
#include <vector>

namespace horavex {

/// The lines of a data file that is UTF-8 text with a record a line, without their ends. Throws
/// FileFault, and BoundsFault for a file that was cut short: its last line lacks its end.
std::vector<std::string> ReadLineFile(const std::string& path);

}  // namespace horavex
