#include "linux/autostart_entry.h"

#include <string_view>

#include "base/bytes.h"
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

}  // namespace

std::string AutostartEntries::Path(const std::string& baseName) const {
    return ConfigHome() + "/autostart/" + baseName + ".desktop";
}

bool AutostartEntries::Has(const std::string& baseName) const {
    return files_.Exists(Path(baseName));
}

void AutostartEntries::Write(const std::string& baseName) {
    files_.WriteWhole(Path(baseName), BytesOf("[Desktop Entry]\n"
                                              "Type=Application\n"
                                              "Name=Horavex\n"
                                              "Exec=" +
                                              Quoted(executable_) +
                                              "\n"
                                              "Terminal=false\n"));
}

void AutostartEntries::Delete(const std::string& baseName) {
    files_.Delete(Path(baseName));
}

}  // namespace horavex
