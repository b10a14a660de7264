#include "config/startup_entry.h"

#include <string>
#include <utility>

#include "base/fault.h"
#include "base/int16.h"
#include "base/number_text.h"
#include "base/program_state.h"
#include "engine/angle.h"
#include "platform/platform.h"
#include "store/register.h"
#include "windows/horavex_main_form.h"

namespace horavex {

namespace {

constexpr const char* kEntryName = "ZORIT";
constexpr const char* kValueName = "ADD TO STARTUP";

/// The stored wish as a whole number; a text that is none is a fault.
std::int16_t ReadWish(const std::string& defaultValue) {
    std::string text;
    CRegister().REGGetSetting(kLocalMachine, kSettingsKey, kValueName, defaultValue, text);
    return RoundToInt16(TextToNumber(text));
}

struct Failures {
    bool wereTold = false;
};

Failures failures;

const ProgramStateReset reset([] { failures = {}; });

/// A step of the start, which goes on whatever becomes of the entry. The user is told of the first
/// step that fails.
template <class Step>
void RunStartStep(Step step) {
    try {
        step();
    } catch (const Fault& fault) {
        if (!std::exchange(failures.wereTold, true)) {
            Ports().dialogs.ShowMessage(std::string(kValueName) + ": " + fault.what(), "",
                                        MessageIcon::kNone);
        }
    }
}

/// Deletes an entry of the session; a failure is told and passed over.
void DeleteFileQuietly(const char* entry) {
    Shell& shell = Ports().shell;
    try {
        shell.DeleteStartupEntry(entry);
    } catch (const FileFault&) {
        // The misspelt word is the message's own.
        Ports().dialogs.ShowMessage("Error deleteing file: " + shell.StartupEntryPath(entry) + Crlf,
                                    "", MessageIcon::kNone);
    }
}

}  // namespace

void AddStartupShortcut() {
    Ports().shell.WriteStartupEntry(kEntryName);
}

void RemoveStartupShortcut() {
    if (Ports().shell.HasStartupEntry(kEntryName)) {
        DeleteFileQuietly(kEntryName);
    }
}

void chkAddToStartup_Click() {
    const int value = HoravexMainForm->chkAddToStartup.Value();
    if (value == 1) {
        AddStartupShortcut();
    } else {
        RemoveStartupShortcut();
    }
    std::int32_t result = 0;
    CRegister().REGSaveSetting(kLocalMachine, kSettingsKey, kValueName, std::to_string(value),
                               result);
}

void LoadStartupWish() {
    RunStartStep([] { HoravexMainForm->chkAddToStartup.SetValue(ReadWish("1")); });
    RunStartStep([] {
        if (ReadWish("0") == 1) {
            AddStartupShortcut();
        }
    });
}

void KeepStartupEntry() {
    if (HoravexMainForm->chkAddToStartup.Value() == 1) {
        RunStartStep(AddStartupShortcut);
    }
}

}  // namespace horavex
