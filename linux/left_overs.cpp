#include "linux/left_overs.h"

#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <csignal>
#include <filesystem>
#include <optional>

#include "linux/replacement.h"

namespace horavex {

namespace {

namespace fs = std::filesystem;

// The process that a temporary name is of; nothing for any other name.
std::optional<pid_t> ProcessOf(const std::string& name) {
    const std::string_view prefix = kTemporaryPrefix;
    pid_t process = 0;
    if (!name.starts_with(prefix)) {
        return std::nullopt;
    }
    const char* end = name.data() + name.size();
    const auto [at, error] = std::from_chars(name.data() + prefix.size(), end, process);
    const bool isTemporary = error == std::errc() && at != end && *at == '-' && process > 0;
    return isTemporary ? std::optional(process) : std::nullopt;
}

// This process has written nothing yet: its number on a name is that of an earlier one.
bool IsLeftOver(const std::string& name) {
    const auto process = ProcessOf(name);
    return process && (*process == ::getpid() || (::kill(*process, 0) != 0 && errno == ESRCH));
}

// Calls action with what lies in a folder; a folder that cannot be read has nothing.
template <class Action>
void ForEachIn(const fs::path& folder, Action action) {
    std::error_code error;
    for (fs::directory_iterator at(folder, error); !error && at != fs::end(at);
         at.increment(error)) {
        action(*at);
    }
}

void ClearFolder(const fs::path& folder) {
    ForEachIn(folder, [](const fs::directory_entry& entry) {
        if (IsLeftOver(entry.path().filename())) {
            ::unlink(entry.path().c_str());
        }
    });
}

}  // namespace

void ClearLeftOvers(const std::vector<std::string>& folders) {
    for (const std::string& folder : folders) {
        ClearFolder(folder);
        ForEachIn(folder, [](const fs::directory_entry& entry) {
            std::error_code error;
            if (entry.is_directory(error)) {
                ClearFolder(entry.path());
            }
        });
    }
}

}  // namespace horavex
