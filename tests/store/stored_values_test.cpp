#include "store/stored_values.h"

#include <optional>

#include "store/register.h"
#include "support/data_folder_test.h"

namespace horavex {
namespace {

class IshaSettingTest : public DataFolderTest {
protected:
    static void Store(const std::string& text) {
        std::int32_t result = 0;
        CRegister().REGSaveSetting(kLocalMachine, kSettingsKey, "Isha Dep Angle", text, result);
    }

    static std::string Stored() {
        std::string text;
        CRegister().REGGetSetting(kLocalMachine, kSettingsKey, "Isha Dep Angle", "nothing", text);
        return text;
    }
};

TEST_F(IshaSettingTest, NoAngleIsAcceptedBeforeTheLoad) {
    EXPECT_EQ(ActiveIshaAngle, 0.0);
}

TEST_F(IshaSettingTest, MissingValueIsAFirstRunWith18Degrees) {
    EXPECT_TRUE(LoadIshaAngle());
    EXPECT_EQ(IshaAngle, 18.0);
    EXPECT_EQ(Stored(), "18");
    EXPECT_FALSE(LoadIshaAngle());
}

TEST_F(IshaSettingTest, AngleBelowZeroIsAFirstRun) {
    for (const std::string text : {"-1", "-5", "-0.25", "-1E+300"}) {
        Store(text);
        EXPECT_TRUE(LoadIshaAngle()) << text;
        EXPECT_EQ(IshaAngle, 18.0);
        EXPECT_EQ(Stored(), "18");
    }
}

TEST_F(IshaSettingTest, TextThatIsNoNumberIsAFirstRun) {
    for (const std::string text : {"", "eighteen", "18 degrees", "nan", "-", "1E+999"}) {
        Store(text);
        EXPECT_TRUE(LoadIshaAngle()) << text;
        EXPECT_EQ(IshaAngle, 18.0);
        EXPECT_EQ(Stored(), "18");
    }
}

TEST_F(IshaSettingTest, StoredAngleIsRead) {
    Store("17.75");
    EXPECT_FALSE(LoadIshaAngle());
    EXPECT_EQ(IshaAngle, 17.75);
    EXPECT_EQ(Stored(), "17.75");
}

TEST_F(IshaSettingTest, AngleOfZeroIsAnAngle) {
    Store("0");
    IshaAngle = 5.0;
    EXPECT_FALSE(LoadIshaAngle());
    EXPECT_EQ(IshaAngle, 0.0);
}

TEST_F(IshaSettingTest, DecimalCommaIsReadToo) {
    Store("17,75");
    EXPECT_FALSE(LoadIshaAngle());
    EXPECT_EQ(IshaAngle, 17.75);
}

TEST_F(IshaSettingTest, RestrictedUserWithoutAValueHasAFirstRunAtEveryStart) {
    platform.registry.DenyWriting(true);
    for (int start = 0; start < 2; ++start) {
        EXPECT_TRUE(LoadIshaAngle());
        EXPECT_EQ(IshaAngle, 18.0);
        EXPECT_EQ(Stored(), "nothing");
    }
}

TEST_F(IshaSettingTest, RestrictedUserReadsTheAngle) {
    Store("15");
    platform.registry.DenyWriting(true);
    EXPECT_FALSE(LoadIshaAngle());
    EXPECT_EQ(IshaAngle, 15.0);
}

TEST_F(IshaSettingTest, RestrictedUserKeepsANegativeAngleThatCannotBeReplaced) {
    Store("-5");
    platform.registry.DenyWriting(true);
    EXPECT_TRUE(LoadIshaAngle());
    EXPECT_EQ(IshaAngle, -5.0);
}

TEST_F(IshaSettingTest, FirstRunIsKnownBeforeItsStartAndNothingIsWritten) {
    EXPECT_FALSE(IshaAngleIsStored());
    EXPECT_EQ(Stored(), "nothing");
    Store("-1");
    EXPECT_FALSE(IshaAngleIsStored());
    Store("0");
    EXPECT_TRUE(IshaAngleIsStored());
}

TEST_F(IshaSettingTest, PeekWritesNothing) {
    PeekIshaAngle();
    EXPECT_EQ(IshaAngle, 18.0);
    EXPECT_EQ(Stored(), "nothing");
    for (const std::string text : {"-1", "-5", "eighteen", "1E+999"}) {
        Store(text);
        PeekIshaAngle();
        EXPECT_EQ(IshaAngle, 18.0) << text;
        EXPECT_EQ(Stored(), text);
    }
    Store("17,75");
    PeekIshaAngle();
    EXPECT_EQ(IshaAngle, 17.75);
}

TEST_F(IshaSettingTest, SavedAngleIsInTheGeneralForm) {
    IshaAngle = 17.75;
    SaveIshaAngle();
    EXPECT_EQ(Stored(), "17.75");
    IshaAngle = 18.0;
    SaveIshaAngle();
    EXPECT_EQ(Stored(), "18");
    IshaAngle = 0.1 + 0.2;
    SaveIshaAngle();
    EXPECT_EQ(Stored(), "0.3");
}

TEST_F(IshaSettingTest, EveryFailingRegistryCallIsPassedInSilence) {
    Store("15");
    for (int n = 1; n <= 6; ++n) {
        platform.registry.FailCall(n);
        LoadIshaAngle();
        EXPECT_TRUE(IshaAngle == 15.0 || IshaAngle == 18.0) << n << " " << IshaAngle;
        platform.registry.FailCall(0);
        EXPECT_TRUE(Stored() == "15" || Stored() == "18") << n;
        platform.registry.FailCall(n);
        SaveIshaAngle();
    }
}

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
