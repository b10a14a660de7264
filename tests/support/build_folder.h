#pragma once

#include <cstdlib>
#include <stdexcept>
#include <string>

namespace horavex {

/// The path of a name in the folder that the project was built into. Throws where the environment
/// does not tell it.
inline std::string BuildPath(const std::string& name) {
    const char* folder = std::getenv("HORAVEX_TEST_BINARY_DIR");
    if (folder == nullptr) {
        throw std::runtime_error("HORAVEX_TEST_BINARY_DIR is not set");
    }
    return std::string(folder) + "/" + name;
}

/// The program folder as it was compiled from data/.
inline std::string BuiltProgramFolder() {
    return BuildPath("share/horavex");
}

}  // namespace horavex
