#pragma once

#include <filesystem>
#include <fstream>
#include <string>

namespace horavex {

/// Makes a value the only one of a user's registry. configFolder: $XDG_CONFIG_HOME.
inline void StoreUsersRegistryValue(const std::filesystem::path& configFolder,
                                    const std::string& name, const std::string& value) {
    std::filesystem::create_directories(configFolder / "horavex");
    std::ofstream file(configFolder / "horavex/registry.ini");
    file << "[Software\\\\Horavex\\\\Settings]\n" << name << "=" << value << "\n";
}

}  // namespace horavex
