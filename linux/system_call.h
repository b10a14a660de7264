#pragma once

#include <cerrno>
#include <string>
#include <system_error>

#include "base/fault.h"

namespace horavex {

/// Turns an error number of the system into a FileFault that names the path.
[[noreturn]] inline void ThrowFileFault(const std::string& path, int error = errno) {
    throw FileFault(path, std::generic_category().message(error));
}

/// The path as the system takes it. Throws FileFault for one with a zero character inside, which
/// the system would cut short there.
inline const char* SystemPath(const std::string& path) {
    if (path.find('\0') != std::string::npos) {
        ThrowFileFault(path, EINVAL);
    }
    return path.c_str();
}

}  // namespace horavex
