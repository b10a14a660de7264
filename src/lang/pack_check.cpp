#include "lang/pack_check.h"

#include <algorithm>

#include "base/fault.h"
#include "base/text.h"
#include "lang/language_pack.h"
#include "lang/pack_keys.h"
#include "lang/profile_file.h"
#include "platform/platform.h"

namespace horavex {

namespace {

using Sections = std::vector<PackSection>;

std::string KeyOf(const std::string& section, const std::string& key) {
    return "[" + section + "] " + key;
}

void CheckWanted(CheckReport& report, const Sections& sections, const std::string& file,
                 const std::string& pack) {
    const ProfileIndex values(pack);
    for (const PackSection& section : sections) {
        for (const std::string& key : section.keys) {
            const auto value = values.Find(section.name, key);
            report.Expect(value.has_value(),
                          file + ": " + KeyOf(section.name, key) + " is missing");
            report.Expect(!value || !value->empty(),
                          file + ": " + KeyOf(section.name, key) + " is empty");
        }
    }
}

bool IsRead(const Sections& sections, const ProfileEntry& entry) {
    return std::ranges::any_of(sections, [&](const PackSection& section) {
        return EqualsIgnoringCase(section.name, entry.section) &&
               std::ranges::any_of(section.keys, [&](const std::string& key) {
                   return EqualsIgnoringCase(key, entry.key);
               });
    });
}

void CheckUnknown(CheckReport& report, const Sections& sections, const std::string& file,
                  const std::string& pack) {
    for (const ProfileEntry& entry : ListProfileEntries(pack)) {
        report.Expect(IsRead(sections, entry),
                      file + ": " + KeyOf(entry.section, entry.key) + " is read by nothing");
    }
}

// A name without its small ".ini" would end the language menu, and one of nothing else would
// stand there as an empty line.
void CheckName(CheckReport& report, const std::string& name) {
    try {
        report.Expect(!LanguageOfFile(name).empty(), "lang/" + name + ": has no name");
    } catch (const BoundsFault& fault) {
        report.Expect(false, std::string("lang/") + fault.what());
    }
}

void CheckPack(CheckReport& report, const Sections& sections, const std::string& file) {
    try {
        const std::string pack = StringOf(Ports().programFolder.ReadWhole(file, kLargestText));
        CheckWanted(report, sections, file, pack);
        CheckUnknown(report, sections, file, pack);
    } catch (const FileFault& fault) {
        report.Expect(false, file + ": " + fault.what());
    }
}

}  // namespace

void CheckLanguagePacks(CheckReport& report) {
    const Sections sections = PackSections();
    for (const std::string& name : ListLanguageFiles(".ini")) {
        CheckName(report, name);
        CheckPack(report, sections, "lang/" + name);
    }
}

}  // namespace horavex
