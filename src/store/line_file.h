#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/text_store.h"

namespace horavex {

/// The lines of a data file that is UTF-8 text with a record a line, without their ends. Throws
/// FileFault, and BoundsFault for a file that was cut short: its last line lacks its end.
std::vector<std::string> ReadLineFile(const std::string& path);

/// The same lines, kept in a store.
std::vector<std::string_view> KeepLineFile(const std::string& path, TextStore& texts);

}  // namespace horavex
