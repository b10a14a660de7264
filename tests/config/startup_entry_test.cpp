#include "config/startup_entry.h"

#include "base/fault.h"
#include "support/program_test.h"

namespace horavex {
namespace {

struct StartupEntryTest : ProgramTest {
    void Store(const std::string& wish) {
        platform.registry.CreateKey("Software\\Horavex\\Settings");
        platform.registry.SetValue("Software\\Horavex\\Settings", "ADD TO STARTUP", wish);
    }

    bool HasEntry() { return platform.shell.startupEntries.contains("ZORIT"); }
};

TEST_F(StartupEntryTest, WithNothingStoredTheEntryIsMadeAndNothingStored) {
    Start();
    EXPECT_TRUE(HasEntry());
    EXPECT_EQ(HoravexMainForm->chkAddToStartup.Value(), 1);
    EXPECT_EQ(Stored("ADD TO STARTUP"), "");
}

TEST_F(StartupEntryTest, StoredZeroUnticksAndRemoves) {
    platform.shell.startupEntries.insert("ZORIT");
    Store("0");
    Start();
    EXPECT_FALSE(HasEntry());
    EXPECT_EQ(HoravexMainForm->chkAddToStartup.Value(), 0);
    EXPECT_EQ(Stored("ADD TO STARTUP"), "0");
}

TEST_F(StartupEntryTest, StoredOneWritesTheEntryTwiceOver) {
    Store("1");
    Start();
    EXPECT_EQ(std::count(platform.desktop.calls.begin(), platform.desktop.calls.end(),
                         "WriteStartupEntry ZORIT"),
              2);
}

TEST_F(StartupEntryTest, EntryThatCannotBeWrittenIsToldOnceAndTheStartGoesOn) {
    Store("1");
    platform.shell.refusesStartupEntries = true;
    Start();
    ASSERT_EQ(platform.dialogs.messages.size(), 1U);
    EXPECT_EQ(platform.dialogs.messages[0].text, "ADD TO STARTUP: /startup/ZORIT: not allowed");
    EXPECT_FALSE(HasEntry());
    EXPECT_EQ(HoravexMainForm->chkAddToStartup.Value(), 1);
    EXPECT_TRUE(frmMain->Visible());
}

TEST_F(StartupEntryTest, WishThatIsNoNumberIsToldOnceAndCountsAsNone) {
    Store("yes");
    Start();
    ASSERT_EQ(platform.dialogs.messages.size(), 1U);
    EXPECT_EQ(platform.dialogs.messages[0].text, "ADD TO STARTUP: \"yes\" is not a number");
    EXPECT_TRUE(HasEntry());
    EXPECT_EQ(HoravexMainForm->chkAddToStartup.Value(), 1);
    EXPECT_TRUE(frmMain->Visible());
}

TEST_F(StartupEntryTest, WishBeyondAllNumbersDoesNotEndTheStart) {
    Store("1e9");
    Start();
    EXPECT_EQ(platform.dialogs.messages.size(), 1U);
    EXPECT_TRUE(frmMain->Visible());
}

TEST_F(StartupEntryTest, EntryThatCannotBeWrittenOnAClickIsAFault) {
    Start();
    HoravexMainForm->chkAddToStartup.UserClick();
    platform.shell.refusesStartupEntries = true;
    EXPECT_THROW(HoravexMainForm->chkAddToStartup.UserClick(), FileFault);
    EXPECT_EQ(Stored("ADD TO STARTUP"), "0") << "what could not be done is not stored";
}

TEST_F(StartupEntryTest, ClickDoesAndStoresIt) {
    Start();
    HoravexMainForm->chkAddToStartup.UserClick();
    EXPECT_FALSE(HasEntry());
    EXPECT_EQ(Stored("ADD TO STARTUP"), "0");
    HoravexMainForm->chkAddToStartup.UserClick();
    EXPECT_TRUE(HasEntry());
    EXPECT_EQ(Stored("ADD TO STARTUP"), "1");
}

TEST_F(StartupEntryTest, EntryThatAUserRemovedByHandComesBackAtTheNextStart) {
    Store("1");
    EXPECT_FALSE(HasEntry());
    Start();
    EXPECT_TRUE(HasEntry());
}

TEST_F(StartupEntryTest, RemovingWhatIsNotThereTouchesNothing) {
    RemoveStartupShortcut();
    EXPECT_EQ(platform.desktop.calls.size(), 0U);
}

TEST_F(StartupEntryTest, FailedDeleteIsToldWithThePathAndALineBreak) {
    Start();
    platform.shell.keepsStartupEntries = true;
    HoravexMainForm->chkAddToStartup.UserClick();
    ASSERT_EQ(platform.dialogs.messages.size(), 1U);
    EXPECT_EQ(platform.dialogs.messages[0].text, "Error deleteing file: /startup/ZORIT\r\n");
    EXPECT_TRUE(HasEntry());
    EXPECT_EQ(Stored("ADD TO STARTUP"), "0");
}

}  // namespace
}  // namespace horavex
