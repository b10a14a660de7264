#include "linux/folders.h"

#include <pwd.h>
#include <unistd.h>

#include <filesystem>

#include "base/text.h"
#include "linux/environment.h"

namespace horavex {

namespace {

namespace fs = std::filesystem;

std::string Home() {
    if (std::string home = FolderVariable("HOME"); !home.empty()) {
        return home;
    }
    const passwd* user = ::getpwuid(::getuid());
    return user == nullptr ? "" : user->pw_dir;
}

// The folder above the executable's; without a /proc the usual place of programs.
fs::path Prefix() {
    std::error_code error;
    const fs::path executable = fs::read_symlink("/proc/self/exe", error);
    return error ? fs::path("/usr") : executable.parent_path().parent_path();
}

}  // namespace

std::string ConfigHome() {
    const std::string folder = FolderVariable("XDG_CONFIG_HOME");
    return folder.empty() ? Home() + "/.config" : folder;
}

std::string DataHome() {
    const std::string folder = FolderVariable("XDG_DATA_HOME");
    return folder.empty() ? Home() + "/.local/share" : folder;
}

std::string MachineConfig() {
    for (const std::string& folder : Split(Variable("XDG_CONFIG_DIRS"), ':')) {
        if (folder.starts_with('/')) {
            return folder;
        }
    }
    return "/etc/xdg";
}

ProgramFolders FindProgramFolders() {
    if (const std::string folder = Variable("HORAVEX_PROGRAM_FOLDER"); !folder.empty()) {
        const std::string absolute = fs::absolute(folder);
        return {absolute, absolute};
    }
    return {DataHome() + "/horavex", Prefix() / "share/horavex"};
}

RegistryFiles FindRegistryFiles() {
    return {ConfigHome() + "/horavex/registry.ini", MachineConfig() + "/horavex/registry.ini"};
}

}  // namespace horavex
