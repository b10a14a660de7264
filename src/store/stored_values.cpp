#include "store/stored_values.h"

#include <string>

#include "base/number_text.h"
#include "base/program_state.h"
#include "store/register.h"
#include "store/settings_record.h"

namespace horavex {

double ActiveIshaAngle = 0.0;

namespace {

constexpr const char* kLanguageValueName = "Language";

const ProgramStateReset reset([] { ActiveIshaAngle = 0.0; });

/// A text that is no number, or none that a 64-bit float holds, counts as the value of a first run.
double ReadAngle(const std::string& defaultValue) {
    std::string text;
    CRegister().REGGetSetting(kLocalMachine, kSettingsKey, kIshaValueName, defaultValue, text);
    return NumberIn(text).value_or(-1.0);
}

void WriteAngle(const std::string& text) {
    std::int32_t result = 0;
    CRegister().REGSaveSetting(kLocalMachine, kSettingsKey, kIshaValueName, text, result);
}

}  // namespace

bool IshaAngleIsStored() {
    return ReadAngle("-1") >= 0.0;
}

bool LoadIshaAngle() {
    const bool isFirst = !IshaAngleIsStored();
    if (isFirst) {
        WriteAngle(kFirstIshaAngle);
    }
    IshaAngle = ReadAngle(kFirstIshaAngle);
    ActiveIshaAngle = IshaAngle;
    return isFirst;
}

void ReloadIshaAngle() {
    IshaAngle = ReadAngle("-1");
}

void PeekIshaAngle() {
    const double stored = ReadAngle(kFirstIshaAngle);
    IshaAngle = stored < 0.0 ? TextToNumber(kFirstIshaAngle) : stored;
}

void SaveIshaAngle() {
    WriteAngle(NumberToText(IshaAngle));
}

std::string ReadStoredLanguage() {
    std::string language;
    CRegister().REGGetSetting(kLocalMachine, kSettingsKey, kLanguageValueName, "English", language);
    return language;
}

void SaveStoredLanguage(const std::string& language) {
    std::int32_t result = 0;
    CRegister().REGSaveSetting(kLocalMachine, kSettingsKey, kLanguageValueName, language, result);
}

}  // namespace horavex
