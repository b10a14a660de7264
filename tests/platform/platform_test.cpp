#include "platform/platform.h"

#include "base/fault.h"
#include "support/test_platform.h"

namespace horavex {
namespace {

TEST(PlatformDeathTest, PortsWithoutAPlatformAreAProgrammingError) {
    EXPECT_DEATH(Ports(), "");
}

TEST(PlatformDeathTest, TestPlatformTakesItsPortsAway) {
    { const TestPlatform platform; }
    EXPECT_DEATH(Ports(), "");
}

TEST(Platform, InstalledPortsAreThoseOfTheTestPlatform) {
    TestPlatform platform;
    EXPECT_EQ(&Ports().clock, &platform.clock);
    EXPECT_EQ(&Ports().eventLoop, &platform.loop);
    EXPECT_EQ(&Ports().files, &platform.failingFiles);
    EXPECT_EQ(&Ports().programFolder, &platform.folder);
    EXPECT_EQ(&Ports().formats, &platform.formats);
    EXPECT_EQ(&Ports().dialogs, &platform.dialogs);
    EXPECT_EQ(&Ports().registry, &platform.registry);
    EXPECT_EQ(&Ports().instanceGuard, &platform.instanceGuard);
    EXPECT_EQ(&Ports().zoneRules, &platform.zoneRules);
}

TEST(Platform, TestPlatformStandsAtNoon) {
    TestPlatform platform;
    EXPECT_EQ(Ports().formats.LongDate(Ports().clock.Now()), "Saturday, November 21, 2026");
    EXPECT_EQ(Ports().formats.MediumTime(Ports().clock.Now()), "12:00 PM");
}

TEST(Platform, ProgramFolderOfTheTestPlatformLiesOverItsFiles) {
    TestPlatform platform;
    Ports().programFolder.WriteWhole("Dat\\AI.DAT", BytesOf("record"));
    EXPECT_EQ(StringOf(platform.files.Contents("/program/Dat/AI.DAT")), "record");
    platform.failingFiles.FailCall(1);
    EXPECT_THROW(Ports().programFolder.ReadWhole("dat\\ai.dat"), FileFault);
}

TEST(Platform, MessagesAndTheOtherInstanceAreScripted) {
    TestPlatform platform;
    Ports().dialogs.ShowMessage("text", "title", MessageIcon::kCritical);
    ASSERT_EQ(platform.dialogs.messages.size(), 1U);
    EXPECT_EQ(platform.dialogs.messages[0].text, "text");
    EXPECT_EQ(platform.dialogs.messages[0].title, "title");
    EXPECT_EQ(platform.dialogs.messages[0].icon, MessageIcon::kCritical);
    EXPECT_FALSE(Ports().instanceGuard.AnotherIsRunning());
    platform.instanceGuard.anotherIsRunning = true;
    EXPECT_TRUE(Ports().instanceGuard.AnotherIsRunning());
}

}  // namespace
}  // namespace horavex
