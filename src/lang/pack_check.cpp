#include "lang/pack_check.h"

#include <algorithm>

#include "base/fault.h"
#include "base/text.h"
#include "lang/pack_keys.h"
#include "lang/profile_file.h"
#include "platform/platform.h"

namespace horavex {

namespace {

bool IsPackName(const std::string& name) {
    return name.size() > 4 && EqualsIgnoringCase(name.substr(name.size() - 4), ".ini");
}

std::string KeyOf(const std::string& section, const std::string& key) {
    return "[" + section + "] " + key;
}

void CheckWanted(CheckReport& report, const std::string& file, const std::string& pack) {
    for (const PackSection& section : PackVocabularies()) {
        for (const std::string& key : section.keys) {
            const auto value = FindProfileValue(pack, section.name, key);
            report.Expect(value.has_value(),
                          file + ": " + KeyOf(section.name, key) + " is missing");
            report.Expect(!value || !value->empty(),
                          file + ": " + KeyOf(section.name, key) + " is empty");
        }
    }
}

void CheckUnknown(CheckReport& report, const std::string& file, const std::string& pack) {
    for (const ProfileEntry& entry : ListProfileEntries(pack)) {
        const auto& sections = PackVocabularies();
        const bool known =
            std::any_of(sections.begin(), sections.end(), [&](const PackSection& section) {
                return EqualsIgnoringCase(section.name, entry.section) &&
                       std::any_of(section.keys.begin(), section.keys.end(),
                                   [&](const std::string& key) {
                                       return EqualsIgnoringCase(key, entry.key);
                                   });
            });
        report.Expect(known, file + ": " + KeyOf(entry.section, entry.key) + " is read by nothing");
    }
}

void CheckPack(CheckReport& report, const std::string& file) {
    try {
        const std::string pack = StringOf(Ports().programFolder.ReadWhole(file));
        CheckWanted(report, file, pack);
        CheckUnknown(report, file, pack);
    } catch (const FileFault& fault) {
        report.Expect(false, file + ": " + fault.what());
    }
}

}  // namespace

void CheckLanguagePacks(CheckReport& report) {
    for (const std::string& name : Ports().programFolder.List("lang")) {
        if (IsPackName(name)) {
            CheckPack(report, "lang/" + name);
        }
    }
}

}  // namespace horavex
