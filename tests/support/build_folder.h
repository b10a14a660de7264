#pragma once

#include <cstdlib>
#include <stdexcept>
#include <string>

namespace horavex {

/// The path of a name in a folder that a variable of the environment tells. Throws where it does
/// not.
inline std::string PathIn(const char* variable, const std::string& name) {
    const char* folder = std::getenv(variable);
    if (folder == nullptr) {
        throw std::runtime_error(std::string(variable) + " is not set");
    }
    return std::string(folder) + "/" + name;
}

/// A name in the folder that the project was built into.
inline std::string BuildPath(const std::string& name) {
    return PathIn("HORAVEX_TEST_BINARY_DIR", name);
}

/// A name in the folder of the sources.
inline std::string SourcePath(const std::string& name) {
    return PathIn("HORAVEX_TEST_SOURCE_DIR", name);
}

/// The program folder as it was compiled from data/.
inline std::string BuiltProgramFolder() {
    return BuildPath("share/horavex");
}

}  // namespace horavex
