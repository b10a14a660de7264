#include "lang/pack_files.h"

#include "base/fault.h"
#include "base/text.h"
#include "platform/platform.h"

namespace horavex {

namespace {

constexpr const char* kFolder = "\\Lang\\";

bool EndsIn(const std::string& name, const std::string& suffix) {
    return name.size() >= suffix.size() &&
           EqualsIgnoringCase(name.substr(name.size() - suffix.size()), suffix);
}

}  // namespace

std::string LanguageFilePath(const std::string& fileName) {
    return kFolder + fileName;
}

std::vector<std::string> ListLanguageFiles(const std::string& suffix) {
    std::vector<std::string> names = Ports().programFolder.List(kFolder);
    std::erase_if(names, [&](const std::string& name) { return !EndsIn(name, suffix); });
    return names;
}

std::string LanguageOfFile(const std::string& fileName) {
    const std::size_t end = fileName.find(".ini");
    if (end == std::string::npos) {
        throw BoundsFault(fileName +
                          ": the name of a language file ends in \".ini\", in small "
                          "letters");
    }
    return fileName.substr(0, end);
}

}  // namespace horavex
