#include "config/system_info.h"

#include "store/register.h"
#include "support/test_platform.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kPathKey = "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO";
constexpr const char* kFolderKey = "SOFTWARE\\Microsoft\\Shared Tools Location";

class SystemInfoTest : public testing::Test {
protected:
    void Store(const std::string& key, const std::string& name, const std::string& value) {
        platform.registry.CreateKey(key);
        platform.registry.SetValue(key, name, value);
    }

    std::vector<std::string> CallsOfStart() {
        StartSysInfo();
        return platform.desktop.calls;
    }

    void ExpectTold() {
        ASSERT_EQ(platform.dialogs.messages.size(), 1U);
        EXPECT_EQ(platform.dialogs.messages[0].text,
                  "System Information Is Unavailable At This Time");
    }

    TestPlatform platform;
    std::string text = "before";
};

TEST_F(SystemInfoTest, NamedProgramStarts) {
    Store(kPathKey, "PATH", "/opt/tools/about-machine");
    EXPECT_THAT(CallsOfStart(), ElementsAre("StartProgram /opt/tools/about-machine"));
    EXPECT_THAT(platform.dialogs.messages, IsEmpty());
}

TEST_F(SystemInfoTest, ToolInTheNamedFolderStarts) {
    Store(kFolderKey, "MSINFO", "/opt/tools");
    platform.files.WriteWhole("/opt/tools/MSINFO32.EXE", {});
    EXPECT_THAT(CallsOfStart(), ElementsAre("StartProgram /opt/tools/MSINFO32.EXE"));
}

TEST_F(SystemInfoTest, NamedProgramGoesBeforeTheFolder) {
    Store(kPathKey, "PATH", "/opt/tools/about-machine");
    Store(kFolderKey, "MSINFO", "/opt/tools");
    platform.files.WriteWhole("/opt/tools/MSINFO32.EXE", {});
    EXPECT_THAT(CallsOfStart(), ElementsAre("StartProgram /opt/tools/about-machine"));
}

TEST_F(SystemInfoTest, WithNeitherTheDesktopsToolOpens) {
    EXPECT_THAT(CallsOfStart(), ElementsAre("OpenSystemInformation"));
    EXPECT_THAT(platform.dialogs.messages, IsEmpty());
}

TEST_F(SystemInfoTest, WithNoToolAtAllNothingStartsAndTheMessageTells) {
    platform.shell.hasSystemInformation = false;
    EXPECT_THAT(CallsOfStart(), ElementsAre("OpenSystemInformation"));
    ExpectTold();
}

TEST_F(SystemInfoTest, FolderWithoutTheToolCountsAsNone) {
    platform.shell.hasSystemInformation = false;
    Store(kFolderKey, "MSINFO", "/opt/tools");
    EXPECT_THAT(CallsOfStart(), ElementsAre("OpenSystemInformation"));
    ExpectTold();
}

TEST_F(SystemInfoTest, ProgramThatDoesNotStartIsTold) {
    platform.shell.startsPrograms = false;
    Store(kPathKey, "PATH", "/opt/tools/gone");
    EXPECT_THAT(CallsOfStart(), ElementsAre("StartProgram /opt/tools/gone"));
    ExpectTold();
}

TEST_F(SystemInfoTest, ValueIsRead) {
    Store("Key", "name", "value");
    EXPECT_EQ(GetKeyValue(kLocalMachine, "Key", "name", text), -1);
    EXPECT_EQ(text, "value");
}

TEST_F(SystemInfoTest, EmptyValueIsASuccess) {
    Store("Key", "name", "");
    EXPECT_EQ(GetKeyValue(kLocalMachine, "Key", "name", text), -1);
    EXPECT_EQ(text, "");
}

TEST_F(SystemInfoTest, MissingKeyOrValueIsAFailureWithAnEmptyText) {
    EXPECT_EQ(GetKeyValue(kLocalMachine, "Key", "name", text), 0);
    EXPECT_EQ(text, "");
    platform.registry.CreateKey("Key");
    text = "before";
    EXPECT_EQ(GetKeyValue(kLocalMachine, "Key", "name", text), 0);
    EXPECT_EQ(text, "");
}

TEST_F(SystemInfoTest, UserWithoutAllRightsFindsNothing) {
    Store("Key", "name", "value");
    platform.registry.DenyWriting(true);
    EXPECT_EQ(GetKeyValue(kLocalMachine, "Key", "name", text), 0);
    EXPECT_EQ(text, "");
}

TEST_F(SystemInfoTest, KeyOfAnotherHiveIsAnotherKey) {
    Store("Key", "name", "value");
    EXPECT_EQ(GetKeyValue(7, "Key", "name", text), 0);
    Store("7\\Key", "name", "other");
    EXPECT_EQ(GetKeyValue(7, "Key", "name", text), -1);
    EXPECT_EQ(text, "other");
}

TEST_F(SystemInfoTest, ClosingZeroIsDroppedOnce) {
    Store("Key", "name", std::string("ab\0\0", 4));
    EXPECT_EQ(GetKeyValue(kLocalMachine, "Key", "name", text), -1);
    EXPECT_EQ(text, std::string("ab\0", 3));
}

TEST_F(SystemInfoTest, ValueThatFillsTheBufferIsAFailure) {
    Store("Key", "fits", std::string(1023, 'x'));
    Store("Key", "long", std::string(1024, 'x'));
    EXPECT_EQ(GetKeyValue(kLocalMachine, "Key", "fits", text), -1);
    EXPECT_EQ(text.size(), 1023U);
    EXPECT_EQ(GetKeyValue(kLocalMachine, "Key", "long", text), 0);
    EXPECT_EQ(text, "");
}

}  // namespace
}  // namespace horavex
