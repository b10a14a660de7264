#include "lang/language_menu.h"

#include <algorithm>
#include <vector>

#include "base/fault.h"
#include "base/int16.h"
#include "base/program_state.h"
#include "base/text.h"
#include "lang/form_language.h"
#include "lang/language_pack.h"
#include "lang/own_digits.h"
#include "platform/platform.h"
#include "windows/frm_main.h"

namespace horavex {

std::int16_t languageMenuBuilt = kFalse;

namespace {

std::int16_t languageMenuCount = 0;  // items of mnuL that stand for a language

const ProgramStateReset reset([] {
    languageMenuBuilt = kFalse;
    languageMenuCount = 0;
});

constexpr const char* kNoCaption = "-";  // what the definition gives mnuL(0)
constexpr const char* kNotAvailable = "Not Available";

void RefuseBadPicture(const std::string& path) {
    if (!StringOf(Ports().programFolder.ReadWhole(path)).starts_with("BM")) {
        throw FileFault(path, "is no bitmap");
    }
}

/// File names of the emblems, each looked into: a bad one stops the menu before its first entry.
std::vector<std::string> LoadEmblems() {
    std::vector<std::string> emblems = ListLanguageFiles(".bmp");
    for (const std::string& emblem : emblems) {
        RefuseBadPicture(LanguageFilePath(emblem));
    }
    return emblems;
}

// The entry knows its emblem by the exact name: "French.BMP" is none of "French".
void SetEmblem(MenuItem& item, const std::vector<std::string>& emblems) {
    const std::string key = item.Caption() + ".bmp";
    if (std::ranges::find(emblems, key) != emblems.end()) {
        item.SetPicture(LanguageFilePath(key));
    }
}

/// As those who speak the language write it.
std::string OwnName(const std::string& language) {
    return ReadPackString(LanguagePackPath(language), "desktop", "OwnName", "", kPackNameBuffer);
}

std::int16_t AddLanguages(const std::string& language, const std::vector<std::string>& emblems) {
    std::int16_t count = 0;
    for (const std::string& file : ListLanguageFiles(".ini")) {
        const std::string name = LanguageOfFile(file);
        languageFilesPresent = kTrue;
        MenuItem& item = count == 0 ? frmMain->mnuL(0) : frmMain->mnuL.Load(count);
        item.SetCaption(name);
        item.SetChecked(EqualsIgnoringCase(name, language));
        SetEmblem(item, emblems);
        item.SetAside(OwnName(name));
        count = AddInt16(count, 1);
    }
    return count;
}

// The definition's mnuL(0) keeps the submenu from ever being empty, so that without a pack it is
// this item that says so; only a submenu without it gets one that nobody can choose.
void TellWhereNoneIs() {
    if (frmMain->mnuChangeLanguage.Entries().empty()) {
        MenuItem& item = frmMain->mnuL.Load(0);
        item.SetCaption(kNotAvailable);
        item.SetEnabled(false);
    }
    if (frmMain->mnuL(0).Caption() == kNoCaption) {
        frmMain->mnuL(0).SetCaption(kNotAvailable);
    }
}

}  // namespace

void BuildLanguageMenu(const std::string& language) {
    try {
        const std::int16_t count = AddLanguages(language, LoadEmblems());
        TellWhereNoneIs();
        languageMenuBuilt = kTrue;
        languageMenuCount = count;
    } catch (const Fault& fault) {
        Ports().dialogs.ShowMessage(fault.what(), "", MessageIcon::kNone);
    }
}

// "Not Available" can be chosen like a language: it becomes the current one, and no form is walked.
void mnuL_Click(int index) {
    MenuItem& chosen = frmMain->mnuL(index);
    currentLanguage = chosen.Caption();
    for (int i = 0; i < languageMenuCount; ++i) {
        frmMain->mnuL(i).SetChecked(false);
    }
    chosen.SetChecked(true);
    TranslateOnLoad(*frmMain);
    FollowPackDigits();
}

void BindLanguageMenu() {
    frmMain->mnuL.Bind(
        [](MenuItem& item) { item.onClick = [&item] { mnuL_Click(item.Index()); }; });
}

}  // namespace horavex
