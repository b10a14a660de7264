#pragma once

#include <sys/stat.h>

#include <optional>
#include <string>

namespace horavex {

/// What is behind a path, symbolic links followed by the system itself, so that its own protection
/// of links in shared folders counts. Nothing for a name that is free. Throws FileFault for a link
/// that leads nowhere. Nothing is opened: a pipe is not waited for and a device does nothing.
std::optional<struct stat> StatusBehind(const std::string& path);

/// What changes whenever a file is written or replaced: its number, its length and its times. The
/// same for all names that are free; empty where nothing is told. A shared look may answer
/// (shared_looks.h), here and below.
std::string StampOfFile(const std::string& path);

/// The stamp of what has rested for longer than a file system's clock takes for a step, up to two
/// seconds; empty for what has not, which may change once more under the same stamp.
std::string SettledStamp(const std::string& path);

/// Throws FileFault for a folder, a pipe, a device or a socket.
void RefuseSpecial(const struct stat& status, const std::string& path);

}  // namespace horavex
