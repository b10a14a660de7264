#pragma once

#include <string>

namespace horavex {

/// The user's folder of settings: $XDG_CONFIG_HOME, else ".config" in the home folder.
std::string ConfigHome();

/// The user's folder of data: $XDG_DATA_HOME, else ".local/share" in the home folder.
std::string DataHome();

/// The machine-wide folder of settings: the first of $XDG_CONFIG_DIRS, else "/etc/xdg".
std::string MachineConfig();

/// The two folders that make the program folder.
struct ProgramFolders {
    std::string user;
    std::string installed;
};

/// $HORAVEX_PROGRAM_FOLDER for both when it is set, a relative one from the present working
/// folder. Otherwise "horavex" in DataHome, and "../share/horavex" from the executable's folder.
ProgramFolders FindProgramFolders();

/// The two files of the key-value store: "horavex/registry.ini" in ConfigHome and MachineConfig.
struct RegistryFiles {
    std::string user;
    std::string machine;
};

RegistryFiles FindRegistryFiles();

}  // namespace horavex
