#include "linux/zone_name.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string_view>

namespace horavex {

namespace {

namespace fs = std::filesystem;

/// The part of a path behind the database's folder, in whichever of its variants.
std::string NameInPath(const std::string& path) {
    constexpr std::string_view kFolder = "zoneinfo/";
    const std::size_t at = path.rfind(kFolder);
    if (at == std::string::npos) {
        return {};
    }
    const std::string name = path.substr(at + kFolder.size());
    for (const std::string_view variant : {"posix/", "right/"}) {
        if (name.starts_with(variant)) {
            return name.substr(variant.size());
        }
    }
    return name;
}

std::string NameInVariable(std::string value) {
    if (value.starts_with(':')) {
        value.erase(0, 1);
    }
    return value.starts_with('/') ? NameInPath(value) : value;
}

std::string NameInLink(const std::string& link) {
    std::error_code error;
    return NameInPath(fs::read_symlink(link, error).string());
}

std::string NameInFile(const std::string& path) {
    std::ifstream file(path);
    std::string name;
    file >> name;
    return name;
}

std::string NameIn(const ZoneSources& sources) {
    if (sources.variable) {
        return NameInVariable(*sources.variable);
    }
    const std::string linked = NameInLink(sources.link);
    return linked.empty() ? NameInFile(sources.file) : linked;
}

/// The variable may hold a zone's rules in the place of its name, and anything else.
bool IsZone(const fs::path& path) {
    std::error_code error;
    return fs::is_regular_file(path, error);
}

}  // namespace

ZoneSources ThisComputersSources() {
    const char* variable = std::getenv("TZ");
    return {variable == nullptr ? std::nullopt : std::optional<std::string>(variable),
            "/etc/localtime", "/etc/timezone", "/usr/share/zoneinfo"};
}

std::vector<std::string> ZoneNamesIn(const ZoneSources& sources) {
    const std::string name = NameIn(sources);
    const fs::path path = fs::path(sources.database) / name;
    if (name.empty() || !IsZone(path)) {
        return {};
    }
    std::error_code error;
    const std::string target = NameInPath(fs::canonical(path, error).string());
    return target.empty() || target == name ? std::vector{name} : std::vector{name, target};
}

}  // namespace horavex
