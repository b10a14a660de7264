#include "linux/autostart_entry.h"

#include <string_view>

#include "base/bytes.h"
#include "base/fault.h"
#include "linux/folders.h"

namespace horavex {

namespace {

// A line's value takes an escaped backslash, and so does a quoted argument inside it: a backslash
// of the path is written four times. A percent sign would begin a field of the launcher's.
std::string Escaped(char c) {
    switch (c) {
        case '\\':
            return "\\\\\\\\";
        case '"':
        case '`':
        case '$':
            return std::string("\\\\") + c;
        case '%':
            return "%%";
        case '\n':
            return "\\n";
        default:
            return {c};
    }
}

std::string Quoted(std::string_view argument) {
    std::string quoted = "\"";
    for (const char c : argument) {
        quoted += Escaped(c);
    }
    return quoted + "\"";
}

bool Holds(Files& files, const std::string& path, const Bytes& bytes) {
    try {
        return files.Exists(path) && ReadWhole(files, path) == bytes;
    } catch (const FileFault&) {
        return false;
    }
}

}  // namespace

std::string AutostartEntries::Path(const std::string& baseName) const {
    return ConfigHome() + "/autostart/" + baseName + ".desktop";
}

bool AutostartEntries::Has(const std::string& baseName) const {
    return files_.Exists(Path(baseName));
}

// Each start writes it, before its first window, and a write waits for the disk.
void AutostartEntries::Write(const std::string& baseName) {
    const std::string path = Path(baseName);
    const Bytes entry = BytesOf(
        "[Desktop Entry]\n"
        "Type=Application\n"
        "Name=Horavex\n"
        "Exec=" +
        Quoted(executable_) +
        "\n"
        "Terminal=false\n");
    if (!Holds(files_, path, entry)) {
        files_.WriteWhole(path, entry);
    }
}

void AutostartEntries::Delete(const std::string& baseName) {
    files_.Delete(Path(baseName));
}

}  // namespace horavex
