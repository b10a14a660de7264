#include "store/language_setting.h"

#include "store/register.h"

namespace horavex {

namespace {

constexpr const char* kLanguageValueName = "Language";

}  // namespace

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
