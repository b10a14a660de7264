#include "lang/language_pack.h"

#include <algorithm>

#include "base/check_report.h"
#include "base/fault.h"
#include "base/text.h"
#include "base/utf8.h"
#include "fuzz/input.h"
#include "fuzz/target.h"
#include "fuzz/targets/targets.h"
#include "lang/form_language.h"
#include "lang/own_digits.h"
#include "lang/pack_check.h"
#include "lang/profile_file.h"
#include "support/test_platform.h"
#include "windows/frm_main.h"

namespace horavex {

namespace {

constexpr const char* kPack = "\\lang\\English.ini";

/// What is found stands in the list of all.
void RequireItIsListed(const std::string& profile, const std::string& section,
                       const std::string& key) {
    if (FindProfileValue(profile, section, key)) {
        Require(std::ranges::any_of(ListProfileEntries(profile),
                                    [&](const ProfileEntry& entry) {
                                        return EqualsIgnoringCase(entry.section, section) &&
                                               EqualsIgnoringCase(entry.key, key);
                                    }),
                "what is found is listed");
    }
}

void ReadAsTheProgramDoes(const std::string& section, const std::string& key) {
    for (const std::size_t buffer : {kPackTextBuffer, kPackNameBuffer}) {
        Require(IsUtf8(ReadPackString(kPack, section, key, "", buffer)), "texts are UTF-8");
    }
    LoadFormLanguage(*frmMain, kPack);
    ShowOwnDigits(true);
    InShownDigits("12:30 (5)");
    CheckReport report;
    CheckLanguagePacks(report);
}

}  // namespace

void FuzzLanguagePack(ByteView bytes) {
    FuzzInput input(bytes);
    const std::string section = input.TakeText();
    const std::string key = input.TakeText();
    const std::string profile = input.TakeRest();
    TestPlatform platform;
    platform.files.WriteWhole("/program/lang/English.ini", BytesOf(profile));
    currentLanguage = "English";
    RequireItIsListed(profile, section, key);
    RunStep([&] { ReadAsTheProgramDoes(section, key); });
}

}  // namespace horavex
