#include "config/system_info.h"

#include <algorithm>
#include <cstddef>

#include "base/fault.h"
#include "base/int16.h"
#include "platform/platform.h"
#include "store/register.h"

namespace horavex {

namespace {

constexpr std::size_t kBuffer = 1024;  // bytes, with the closing zero
constexpr std::int32_t kAllRights = 0x2003F;

/// A value of a machine-wide key; empty for none.
std::string Stored(const char* keyName, const char* valueName) {
    std::string text;
    GetKeyValue(kLocalMachine, keyName, valueName, text);
    return text;
}

std::string RealPath(std::string path) {
    std::replace(path.begin(), path.end(), '\\', '/');
    return path;
}

/// Step by step the places where a tool may be named. False where there is none.
bool StartTool() {
    const std::string path = Stored("SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", "PATH");
    if (!path.empty()) {
        return Ports().shell.StartProgram(RealPath(path));
    }
    const std::string folder = Stored("SOFTWARE\\Microsoft\\Shared Tools Location", "MSINFO");
    const std::string tool = RealPath(folder + "\\MSINFO32.EXE");
    if (!folder.empty() && Ports().files.Exists(tool)) {
        return Ports().shell.StartProgram(tool);
    }
    return Ports().shell.OpenSystemInformation();
}

}  // namespace

void StartSysInfo() {
    bool isStarted = false;
    try {
        isStarted = StartTool();
    } catch (const Fault&) {
        // Told below, as any other failure is.
    }
    if (!isStarted) {
        Ports().dialogs.ShowMessage("System Information Is Unavailable At This Time", "",
                                    MessageIcon::kNone);
    }
}

std::int16_t GetKeyValue(std::int32_t root, const std::string& keyName,
                         const std::string& valueName, std::string& text) {
    text.clear();
    const std::string key = RegistryKey(root, keyName);
    std::string stored;
    if (Ports().registry.OpenKey(key, kAllRights) != kRegistrySuccess ||
        Ports().registry.QueryValue(key, valueName, stored) != kRegistrySuccess ||
        stored.size() >= kBuffer) {
        return kFalse;
    }
    if (stored.ends_with('\0')) {
        stored.pop_back();
    }
    text = stored;
    return kTrue;
}

}  // namespace horavex
