#include "support/run_ctl.h"

#include <filesystem>

#include "base/text.h"
#include "support/build_folder.h"
#include "support/registry_values.h"

namespace horavex {

Ctl::Ctl()
    : variables{{"HOME", home_.Path()},
                {"XDG_CONFIG_HOME", home_ / "config"},
                {"XDG_DATA_HOME", home_ / "data"},
                {"XDG_CONFIG_DIRS", home_ / "machine"},
                {"XDG_RUNTIME_DIR", home_.Path()},
                {"TZ", "UTC"},
                {"LC_ALL", "C.UTF-8"}} {}

ProgramRun Ctl::Run(const std::string& line, const std::vector<std::string>& more) const {
    std::vector<std::string> words = line.empty() ? std::vector<std::string>() : Split(line, ' ');
    words.insert(words.end(), more.begin(), more.end());
    return RunProgram("horavexctl", words, variables);
}

std::string Ctl::UseFolderCopy() {
    const std::string copy = home_ / "program";
    std::filesystem::copy(BuiltProgramFolder(), copy, std::filesystem::copy_options::recursive);
    variables["HORAVEX_PROGRAM_FOLDER"] = copy;
    return copy;
}

void Ctl::StoreRegistryValue(const std::string& name, const std::string& value) const {
    StoreUsersRegistryValue(home_ / "config", name, value);
}

}  // namespace horavex
