#include "desktop/ports/session_watch.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <optional>

#include "desktop/notification_service.h"
#include "desktop/private_bus.h"
#include "support/scoped_variable.h"

namespace horavex {
namespace {

/// A login manager on a bus of its own.
class LoginManager {
public:
    LoginManager() { bus_.registerService(QStringLiteral("org.freedesktop.login1")); }

    QDBusConnection Client() { return system_.Connect("system client"); }

    void Tell(const char* signal, bool value) {
        QDBusMessage message = QDBusMessage::createSignal(
            QStringLiteral("/org/freedesktop/login1"),
            QStringLiteral("org.freedesktop.login1.Manager"), QLatin1String(signal));
        bus_.send(message << value);
    }

private:
    TestBus system_;
    QDBusConnection bus_ = system_.Connect("login manager");
};

class SessionWatchTest : public PrivateBus {
protected:
    void MakeSession() { session.emplace(Connect("client"), login.Client()); }

    LoginManager login;
    std::optional<NotificationService> service{Connect("service")};
    std::optional<SessionWatch> session;
};

TEST_F(SessionWatchTest, EndOfASleepIsTold) {
    MakeSession();
    int resumes = 0;
    session->onResume = [&] { ++resumes; };
    login.Tell("PrepareForSleep", true);
    login.Tell("PrepareForShutdown", false);
    login.Tell("PrepareForSleep", false);
    ASSERT_TRUE(Until([&] { return resumes > 0; }));
    EXPECT_EQ(resumes, 1);
    login.Tell("PrepareForSleep", true);
    login.Tell("PrepareForSleep", false);
    EXPECT_TRUE(Until([&] { return resumes == 2; }));
}

TEST_F(SessionWatchTest, WithoutBusesTheSessionIsNeverBusy) {
    const QDBusConnection none(QStringLiteral("none"));
    SessionWatch alone(none, none);
    QCoreApplication::processEvents();
    EXPECT_FALSE(alone.IsBusy());
}

TEST_F(SessionWatchTest, ServiceWithoutThePropertyDisturbsNobody) {
    MakeSession();
    Settle();
    EXPECT_FALSE(session->IsBusy());
}

TEST_F(SessionWatchTest, WishForQuietThatStandsAtTheStartIsKnown) {
    service->inhibited = true;
    MakeSession();
    EXPECT_TRUE(Until([&] { return session->IsBusy(); }));
}

TEST_F(SessionWatchTest, WishForQuietIsFollowedAsItChanges) {
    service->inhibited = false;
    MakeSession();
    Settle();
    EXPECT_FALSE(session->IsBusy());
    service->Inhibit(true);
    EXPECT_TRUE(Until([&] { return session->IsBusy(); }));
    service->Inhibit(false);
    EXPECT_TRUE(Until([&] { return !session->IsBusy(); }));
    EXPECT_EQ(service->looks, 1);
    service->Inhibit(true, false);
    EXPECT_TRUE(Until([&] { return session->IsBusy(); }));
    EXPECT_EQ(service->looks, 2);
}

TEST_F(SessionWatchTest, ServiceThatGoesTakesTheWishAlongAndANewOneIsAsked) {
    service->inhibited = true;
    MakeSession();
    ASSERT_TRUE(Until([&] { return session->IsBusy(); }));
    service.reset();
    EXPECT_TRUE(Until([&] { return !session->IsBusy(); }));
    service.emplace(Connect("service"));
    service->inhibited = true;
    EXPECT_TRUE(Until([&] { return session->IsBusy(); }));
}

/// A GNOME desktop, whose tool prints what a file holds.
class GnomeBannersTest : public PrivateBus {
protected:
    GnomeBannersTest() {
        store.registerService(QStringLiteral("ca.desrt.dconf"));
        std::ofstream(folder / "gsettings") << "#!/bin/sh\necho \"$*\" >>" << folder / "asked"
                                            << "\ncat " << folder / "value" << '\n';
        std::filesystem::permissions(folder / "gsettings", std::filesystem::perms::owner_all);
        SetValue("true");
    }

    void SetValue(const char* value) const { std::ofstream(folder / "value") << value << '\n'; }

    /// A key, or the folder of several, has changed.
    void TellOf(const char* key) {
        QDBusMessage signal = QDBusMessage::createSignal(
            QStringLiteral("/ca/desrt/dconf/Writer/user"), QStringLiteral("ca.desrt.dconf.Writer"),
            QStringLiteral("Notify"));
        store.send(signal << key << QStringList("") << "tag");
    }

    std::string Asked() const { return ContentOf(folder / "asked"); }

    static constexpr const char* kQuestion = "get org.gnome.desktop.notifications show-banners\n";
    TemporaryFolder folder;
    ScopedVariable path{"PATH", (folder.Path() + ":/usr/bin:/bin").c_str()};
    ScopedVariable desktop{"XDG_CURRENT_DESKTOP", "ubuntu:GNOME"};
    QDBusConnection store = Connect("store");
};

TEST_F(GnomeBannersTest, AreHiddenAsTheDesktopsToolTellsAtTheStart) {
    SetValue("false");
    const GnomeBanners banners(Connect("client"));
    EXPECT_TRUE(Until([&] { return banners.AreHidden(); }));
    EXPECT_EQ(Asked(), kQuestion);
}

TEST_F(GnomeBannersTest, AreFollowedAsTheyChangeAndNothingElseIs) {
    SetValue("false");
    const GnomeBanners banners(Connect("client"));
    ASSERT_TRUE(Until([&] { return banners.AreHidden(); }));
    SetValue("true");
    TellOf("/org/gnome/desktop/interface/clock-format");
    TellOf("/org/gnome/desktop/notifications/show-banners");
    EXPECT_TRUE(Until([&] { return !banners.AreHidden(); }));
    SetValue("false");
    TellOf("/org/gnome/desktop/notifications/");
    EXPECT_TRUE(Until([&] { return banners.AreHidden(); }));
    EXPECT_EQ(Asked(), std::string(kQuestion) + kQuestion + kQuestion);
}

TEST_F(GnomeBannersTest, ChangeWhileTheToolRunsIsNotMissed) {
    // The tool reads from a pipe, so that it waits for the test.
    std::filesystem::remove(folder / "value");
    RunCommand({"mkfifo", folder / "value"}, {});
    const GnomeBanners banners(Connect("client"));
    ASSERT_TRUE(Until([&] { return Asked() == kQuestion; }));
    TellOf("/org/gnome/desktop/notifications/show-banners");
    Settle();
    SetValue("true");
    ASSERT_TRUE(Until([&] { return Asked() == std::string(kQuestion) + kQuestion; }));
    SetValue("false");
    EXPECT_TRUE(Until([&] { return banners.AreHidden(); }));
}

TEST_F(GnomeBannersTest, AreShownOnAnyOtherDesktop) {
    const ScopedVariable other("XDG_CURRENT_DESKTOP", "KDE");
    SetValue("false");
    const GnomeBanners banners(Connect("client"));
    TellOf("/org/gnome/desktop/notifications/show-banners");
    Settle();
    EXPECT_FALSE(banners.AreHidden());
    EXPECT_EQ(Asked(), "");
}

TEST_F(GnomeBannersTest, AreShownWithoutTheTool) {
    std::filesystem::remove(folder / "gsettings");
    const ScopedVariable nowhere("PATH", folder.Path().c_str());
    const GnomeBanners banners(Connect("client"));
    QCoreApplication::processEvents();
    EXPECT_FALSE(banners.AreHidden());
}

}  // namespace
}  // namespace horavex
