#include "lang/language_pack.h"

#include <memory>
#include <utility>

#include "base/code_page.h"
#include "base/fault.h"
#include "base/int16.h"
#include "base/program_state.h"
#include "base/text.h"
#include "base/utf8.h"
#include "lang/profile_file.h"
#include "platform/platform.h"

namespace horavex {

std::string currentLanguage;
std::int16_t languageFilesPresent = kFalse;

namespace {

constexpr const char* kPackFolder = "\\Lang\\";

/// A pack, and the stamp that its file had before it was read.
struct Pack {
    Pack() = default;
    Pack(std::string fileStamp, std::string fileText)
        : stamp(std::move(fileStamp)),
          text(std::make_unique<const std::string>(std::move(fileText))),
          values(*text),
          isUtf8(IsUtf8(*text)) {}

    std::string stamp;
    std::unique_ptr<const std::string> text;  // stays in its place, where values point
    ProfileIndex values;
    bool isUtf8 = true;
};
Pack lastRead;

const ProgramStateReset reset([] {
    currentLanguage.clear();
    languageFilesPresent = kFalse;
    lastRead = {};
});

/// The name of the file without its folder and without what follows its last point.
std::string BaseName(const std::string& path) {
    const std::size_t name = path.find_last_of("\\/") + 1;  // 0 for a path without a folder
    return path.substr(name, path.rfind('.') - name);
}

bool IsArabic(const std::string& packName) {
    return EqualsIgnoringCase(packName, "arabic");
}

CodePage EightBitPage(const std::string& packPath) {
    return IsArabic(BaseName(packPath)) ? CodePage::kWindows1256 : CodePage::kWindows1252;
}

/// Every text of the program is asked for anew, some each second: the file is read again only when
/// it is another one or has changed.
void ReadAgainIfChanged(const std::string& packPath) {
    const ProgramFolder& folder = Ports().programFolder;
    const std::string stamp = folder.StampOf(packPath);
    if (stamp.empty() || stamp != lastRead.stamp) {
        lastRead = Pack(stamp, StringOf(folder.ReadWhole(packPath, kLargestText)));
    }
}

/// A missing or unreadable pack is as good as an empty one.
const Pack& ReadPack(const std::string& packPath) {
    try {
        ReadAgainIfChanged(packPath);
    } catch (const FileFault&) {
        lastRead = {};
    }
    return lastRead;
}

bool EndsIn(const std::string& name, const std::string& suffix) {
    return name.size() >= suffix.size() &&
           EqualsIgnoringCase(name.substr(name.size() - suffix.size()), suffix);
}

}  // namespace

std::string LanguagePackPath(const std::string& language) {
    return "\\lang\\" + language + ".ini";
}

bool IsArabicPack() {
    return IsArabic(currentLanguage);
}

std::string ReadPackString(const std::string& packPath, const std::string& section,
                           const std::string& key, const std::string& defaultText,
                           std::size_t bufferSize) {
    const Pack& pack = ReadPack(packPath);
    const auto value = pack.values.Find(section, key);
    if (!value) {
        return defaultText;
    }
    if (pack.isUtf8) {
        return std::string(Utf8Prefix(*value, bufferSize - 1));
    }
    return DecodeCodePage(BytesOf(std::string(value->substr(0, bufferSize - 1))),
                          EightBitPage(packPath));
}

std::string ReadPackString(const std::string& section, const std::string& key,
                           const std::string& defaultText, std::size_t bufferSize) {
    return ReadPackString(LanguagePackPath(currentLanguage), section, key, defaultText, bufferSize);
}

std::string GetLangString(const std::string& section, const std::string& key,
                          const std::string& defaultText) {
    return ReadPackString(section, key, defaultText, kPackTextBuffer);
}

std::string LanguageFilePath(const std::string& fileName) {
    return kPackFolder + fileName;
}

std::vector<std::string> ListLanguageFiles(const std::string& suffix) {
    std::vector<std::string> names = Ports().programFolder.List(kPackFolder);
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
