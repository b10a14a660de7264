#include "store/language_setting.h"

#include "store/register.h"
#include "support/data_folder_test.h"

namespace horavex {
namespace {

using LanguageSettingTest = DataFolderTest;

TEST_F(LanguageSettingTest, EnglishWhereNoneIsStored) {
    EXPECT_EQ(ReadStoredLanguage(), "English");
    std::string value;
    EXPECT_NE(CRegister().REGGetSetting(kLocalMachine, kSettingsKey, "Language", "", value), 0);
}

TEST_F(LanguageSettingTest, NameIsStoredExactlyAsItStands) {
    SaveStoredLanguage("ARABIC");
    EXPECT_EQ(ReadStoredLanguage(), "ARABIC");
    SaveStoredLanguage("Español");
    EXPECT_EQ(ReadStoredLanguage(), "Español");
    SaveStoredLanguage("");
    EXPECT_EQ(ReadStoredLanguage(), "");
}

TEST_F(LanguageSettingTest, RestrictedUserReadsAndSilentlyKeepsNothing) {
    SaveStoredLanguage("Arabic");
    platform.registry.DenyWriting(true);
    SaveStoredLanguage("French");
    EXPECT_EQ(ReadStoredLanguage(), "Arabic");
}

TEST_F(LanguageSettingTest, FailedReadGivesEnglish) {
    SaveStoredLanguage("Arabic");
    platform.registry.FailCall(1);
    EXPECT_EQ(ReadStoredLanguage(), "English");
}

}  // namespace
}  // namespace horavex
