#include "update/web_pages.h"

#include "support/test_platform.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class OpenAddressTest : public testing::Test {
protected:
    void Configure(const std::string& name, const std::string& value) {
        platform.registry.CreateKey("Software\\Horavex\\Settings");
        platform.registry.SetValue("Software\\Horavex\\Settings", name, value);
    }

    TestPlatform platform;
};

TEST_F(OpenAddressTest, TargetGoesToTheShellAsItStands) {
    OpenIt("mailto:people@example.org");
    EXPECT_THAT(platform.desktop.calls, ElementsAre("OpenAddress mailto:people@example.org"));
}

TEST_F(OpenAddressTest, ButtonOpensTheHomePageWhichResolvesNowhereByDefault) {
    platform.network.connection = {true, kLanConnection};
    AboutUpdateButton_Click();
    EXPECT_THAT(platform.desktop.calls, ElementsAre("OpenAddress https://horavex.invalid/"));
}

TEST_F(OpenAddressTest, HomePageIsTheServersRootOrASettingOfItsOwn) {
    platform.network.connection = {true, kLanConnection};
    Configure("Web Server", "https://prayer.example");
    AboutUpdateButton_Click();
    Configure("Home Page", "https://home.example/horavex");
    AboutUpdateButton_Click();
    EXPECT_THAT(platform.desktop.calls, ElementsAre("OpenAddress https://prayer.example/",
                                                    "OpenAddress https://home.example/horavex"));
}

TEST_F(OpenAddressTest, SettingThatIsNoAddressOfTheWebCountsAsAbsent) {
    platform.network.connection = {true, kLanConnection};
    for (const char* address : {"file:///home/me/run.desktop", "mailto:me@example.org", "/bin/sh",
                                "ftp://home.example/", "https:home.example", ""}) {
        Configure("Home Page", address);
        AboutUpdateButton_Click();
        EXPECT_EQ(platform.desktop.calls.back(), "OpenAddress https://horavex.invalid/") << address;
    }
    Configure("Web Server", "file:///srv");
    AboutUpdateButton_Click();
    EXPECT_EQ(platform.desktop.calls.back(), "OpenAddress https://horavex.invalid/");
    Configure("Home Page", "HTTP://home.example");
    AboutUpdateButton_Click();
    EXPECT_EQ(platform.desktop.calls.back(), "OpenAddress HTTP://home.example");
}

TEST_F(OpenAddressTest, MessagesOfPacksTellTheAddressThatIsSet) {
    Configure("Web Server", "https://prayer.example");
    EXPECT_EQ(WithWebAddress("Get it from {address}."), "Get it from https://prayer.example/.");
    EXPECT_EQ(WithWebAddress("Get it."), "Get it.");
}

TEST_F(OpenAddressTest, ButtonTellsTheSummaryOffline) {
    platform.network.connection = {false, kConnectionOffline};
    AboutUpdateButton_Click();
    EXPECT_THAT(platform.desktop.calls, IsEmpty());
    ASSERT_EQ(platform.dialogs.messages.size(), 1U);
    EXPECT_EQ(platform.dialogs.messages[0].text, "No internet connection.");
}

}  // namespace
}  // namespace horavex
