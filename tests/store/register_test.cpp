#include "store/register.h"

#include "support/data_folder_test.h"

namespace horavex {
namespace {

using testing::ElementsAre;

constexpr std::int32_t kUsers = static_cast<std::int32_t>(0x80000003);

class RegisterTest : public DataFolderTest {
protected:
    std::string Get(const std::string& valueName, const std::string& key = kSettingsKey) {
        std::string value = "untouched";
        code = reg.REGGetSetting(kLocalMachine, key, valueName, "default", value);
        return value;
    }

    std::int32_t Save(const std::string& valueName, const std::string& value,
                      const std::string& key = kSettingsKey) {
        std::int32_t result = -1;
        code = reg.REGSaveSetting(kLocalMachine, key, valueName, value, result);
        EXPECT_EQ(result, code);
        return code;
    }

    std::int32_t Delete(const std::string& valueName, const std::string& key = kSettingsKey) {
        std::int32_t result = -1;
        code = reg.REGDeleteSetting(kLocalMachine, key, valueName, result);
        EXPECT_EQ(result, code);
        return code;
    }

    CRegister reg;
    std::int32_t code = -1;
};

TEST_F(RegisterTest, SavedValueIsReadBackWithCodeZero) {
    EXPECT_EQ(Save("Language", "Arabic"), 0);
    EXPECT_EQ(Get("Language"), "Arabic");
    EXPECT_EQ(code, 0);
}

TEST_F(RegisterTest, ValuesStandInTheMachineWideKeyOfTheProgram) {
    Save("Language", "Arabic");
    std::string value;
    EXPECT_EQ(platform.registry.QueryValue("Software\\Horavex\\Settings", "Language", value), 0);
    EXPECT_EQ(value, "Arabic");
}

TEST_F(RegisterTest, MissingKeyGivesTheDefaultAndACode) {
    EXPECT_EQ(Get("Language"), "default");
    EXPECT_EQ(code, kRegistryNotFound);
}

TEST_F(RegisterTest, MissingValueGivesTheDefaultAndACode) {
    Save("Other", "x");
    EXPECT_EQ(Get("Language"), "default");
    EXPECT_EQ(code, kRegistryNotFound);
}

TEST_F(RegisterTest, EmptyTextIsAValue) {
    Save("Language", "");
    EXPECT_EQ(Get("Language"), "");
    EXPECT_EQ(code, 0);
}

TEST_F(RegisterTest, BackslashesAroundAKeyReachTheSameValue) {
    Save("a", "1", "\\Software\\X\\");
    for (const std::string key :
         {"Software\\X", "\\Software\\X", "Software\\X\\", "\\Software\\X\\"}) {
        EXPECT_EQ(Get("a", key), "1") << key;
        EXPECT_EQ(Save("a", "1", key), 0);
    }
    EXPECT_EQ(Delete("a", "Software\\X\\"), 0);
    EXPECT_EQ(Get("a", "\\Software\\X"), "default");
}

TEST_F(RegisterTest, OnlyOneBackslashOfEachSideIsTakenOff) {
    Save("a", "1", "\\Software\\X");
    EXPECT_EQ(Get("a", "\\\\Software\\X"), "default");
    EXPECT_EQ(Get("a", "Software\\X\\\\"), "default");
}

TEST_F(RegisterTest, StarIsTheKeysDefaultValue) {
    Save("*", "the default value");
    EXPECT_EQ(Get("*"), "the default value");
    EXPECT_EQ(Get(""), "the default value");
    std::string value;
    platform.registry.QueryValue("Software\\Horavex\\Settings", "", value);
    EXPECT_EQ(value, "the default value");
}

TEST_F(RegisterTest, StarDeletesTheDefaultValueAndNothingElse) {
    Save("*", "x");
    Save("Language", "Arabic");
    EXPECT_EQ(Delete("*"), 0);
    EXPECT_EQ(Get("*"), "default");
    EXPECT_EQ(Get("Language"), "Arabic");
}

TEST_F(RegisterTest, DeletedValueIsGoneAndItsKeyStays) {
    Save("Language", "Arabic");
    Save("Other", "x");
    EXPECT_EQ(Delete("Language"), 0);
    EXPECT_EQ(Get("Language"), "default");
    EXPECT_EQ(Get("Other"), "x");
    EXPECT_EQ(Delete("Language"), kRegistryNotFound);
}

TEST_F(RegisterTest, EmptyNameDeletesTheKey) {
    Save("*", "x");
    Save("Language", "Arabic");
    EXPECT_EQ(Delete(""), 0);
    EXPECT_EQ(Get("Language"), "default");
    EXPECT_EQ(Delete("Language"), kRegistryNotFound);
    EXPECT_EQ(Delete(""), kRegistryNotFound);
    EXPECT_EQ(platform.registry.OpenKey("Software\\Horavex\\Settings", kRegistryRead),
              kRegistryNotFound);
}

TEST_F(RegisterTest, RestrictedUserReads) {
    Save("Language", "Arabic");
    platform.registry.DenyWriting(true);
    EXPECT_EQ(Get("Language"), "Arabic");
    EXPECT_EQ(code, 0);
    EXPECT_EQ(Get("Other"), "default");
    EXPECT_EQ(code, kRegistryNotFound);
}

TEST_F(RegisterTest, RestrictedUsersWriteKeepsNothing) {
    Save("Language", "Arabic");
    platform.registry.DenyWriting(true);
    EXPECT_EQ(Save("Language", "English"), kRegistryAccessDenied);
    EXPECT_EQ(Save("a", "1", "Software\\New"), kRegistryAccessDenied);
    EXPECT_EQ(Delete("Language"), kRegistryAccessDenied);
    EXPECT_EQ(Delete(""), kRegistryAccessDenied);
    EXPECT_EQ(Get("Language"), "Arabic");
    EXPECT_EQ(Get("a", "Software\\New"), "default");
}

TEST_F(RegisterTest, OnlyADeniedOpenIsTriedAgain) {
    Save("Language", "Arabic");
    platform.registry.FailCall(1, kRegistryAccessDenied);
    EXPECT_EQ(Get("Language"), "Arabic");
    EXPECT_EQ(platform.registry.Calls(), 3);  // both opens and the query
    platform.registry.FailCall(1, kRegistryWriteFault);
    EXPECT_EQ(Get("Language"), "default");
    EXPECT_EQ(code, kRegistryWriteFault);
    EXPECT_EQ(platform.registry.Calls(), 1);
}

TEST_F(RegisterTest, FailedQueryGivesTheDefaultAndItsCode) {
    Save("Language", "Arabic");
    platform.registry.FailCall(2, kRegistryWriteFault);
    EXPECT_EQ(Get("Language"), "default");
    EXPECT_EQ(code, kRegistryWriteFault);
}

TEST_F(RegisterTest, EveryFailingCallOfASaveGivesItsCodeAndKeepsTheOldValue) {
    Save("Language", "Arabic");
    for (int n = 1; n <= 2; ++n) {  // the key, the value
        platform.registry.FailCall(n);
        EXPECT_EQ(Save("Language", "English"), kRegistryWriteFault);
        EXPECT_EQ(Get("Language"), "Arabic");
    }
    platform.registry.FailCall(0);
    EXPECT_EQ(Save("Language", "English"), 0);
    EXPECT_EQ(platform.registry.Calls(), 2);
}

TEST_F(RegisterTest, EveryFailingCallOfADeleteGivesItsCodeAndKeepsTheValue) {
    Save("Language", "Arabic");
    for (const std::string name : {"Language", ""}) {
        for (int n = 1; n <= 2; ++n) {  // the open, the deletion
            platform.registry.FailCall(n);
            EXPECT_EQ(Delete(name), kRegistryWriteFault);
            EXPECT_EQ(Get("Language"), "Arabic");
        }
    }
}

TEST_F(RegisterTest, HivesDoNotMix) {
    Save("Language", "Arabic");
    std::string value;
    EXPECT_NE(reg.REGGetSetting(kUsers, kSettingsKey, "Language", "default", value), 0);
    EXPECT_EQ(value, "default");
    std::int32_t result = 0;
    reg.REGSaveSetting(kUsers, kSettingsKey, "Language", "French", result);
    EXPECT_EQ(Get("Language"), "Arabic");
    reg.REGGetSetting(kUsers, kSettingsKey, "Language", "default", value);
    EXPECT_EQ(value, "French");
}

/// Notes with which rights keys are opened.
class WatchedRegistry : public MemoryRegistry {
public:
    std::int32_t OpenKey(const std::string& key, std::int32_t access) override {
        masks.push_back(access);
        return MemoryRegistry::OpenKey(key, access);
    }

    std::vector<std::int32_t> masks;
};

TEST_F(RegisterTest, KeysAreOpenedWithAllRightsAndThenForReading) {
    WatchedRegistry watched;
    const Platform ports{platform.clock,
                         platform.loop,
                         platform.failingFiles,
                         platform.folder,
                         platform.formats,
                         platform.dialogs,
                         watched,
                         platform.instanceGuard,
                         platform.face,
                         platform.windows,
                         platform.tray,
                         platform.shell,
                         platform.network,
                         platform.athanFace,
                         platform.audioFile,
                         platform.audioPlayer,
                         platform.zoneRules,
                         platform.whereabouts,
                         platform.notices,
                         platform.mediaPlayers,
                         platform.session,
                         platform.almanac,
                         platform.broadcast};
    InstallPlatform(&ports);
    Save("Language", "Arabic");
    watched.DenyWriting(true);
    EXPECT_EQ(Get("Language"), "Arabic");
    EXPECT_THAT(watched.masks, ElementsAre(0xF003F, 131097));
    Delete("Language");
    EXPECT_THAT(watched.masks, ElementsAre(0xF003F, 131097, 0xF003F));
    InstallPlatform(nullptr);
}

TEST(NormalizeKey, TakesOneBackslashOffEachSide) {
    const auto normalize = [](const std::string& key) {
        std::string normal = "untouched";
        CRegister::NormalizeKey(key, normal);
        return normal;
    };
    EXPECT_EQ(normalize("\\a\\b\\"), "a\\b");
    EXPECT_EQ(normalize("a\\b"), "a\\b");
    EXPECT_EQ(normalize("\\\\a\\\\"), "\\a\\");
    EXPECT_EQ(normalize("\\"), "");
    EXPECT_EQ(normalize("\\\\"), "");
    EXPECT_EQ(normalize(""), "");
}

}  // namespace
}  // namespace horavex
