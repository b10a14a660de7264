// Notifications without a toolkit, on a real bus with a notification service of the test.

#include "linux/bus/bus_notices.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sdbus-c++/sdbus-c++.h>

#include "support/bus_configuration.h"
#include "support/child_process.h"
#include "terminal/bus_loop_test.h"
#include "terminal/ports/terminal_notices.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

constexpr const char* kName = "org.freedesktop.Notifications";

const Notice kAthan = {"Asr", "It is <3:12> PM", false, "Stop", "Open"};
const Notice kReminder = {"Asr", "in 10 minutes", true, "", "Open"};

using Hints = std::map<std::string, sdbus::Variant>;

/// A notification service that writes down what it is asked for.
class Desktop {
public:
    struct Shown {
        std::uint32_t replaced;
        std::string title;
        std::string text;
        std::vector<std::string> actions;
        Hints hints;
        std::int32_t timeout;
    };

    explicit Desktop(PollEventLoop& loop)
        : bus_(sdbus::createSessionBusConnection()),
          object_(sdbus::createObject(*bus_, "/org/freedesktop/Notifications")) {
        AddMethods();
        bus_->requestName(kName);
        Serve();
        reader_.emplace(loop, bus_->getEventLoopPollData().fd, [this] { Serve(); });
    }

    void Press(std::uint32_t number, const std::string& key) {
        object_->emitSignal("ActionInvoked").onInterface(kName).withArguments(number, key);
    }

    void Dismiss(std::uint32_t number) {
        constexpr std::uint32_t kByTheUser = 2;
        object_->emitSignal("NotificationClosed")
            .onInterface(kName)
            .withArguments(number, kByTheUser);
    }

    /// Returns once the bus has handed on what was told.
    void Flush() { bus_->requestName("org.horavex.Flushed"); }

    std::vector<Shown> shown;
    std::vector<std::uint32_t> closed;

private:
    void AddMethods() {
        object_->registerMethod("GetCapabilities").onInterface(kName).implementedAs([] {
            return std::vector<std::string>{"actions", "body", "body-markup"};
        });
        object_->registerMethod("CloseNotification")
            .onInterface(kName)
            .implementedAs([this](std::uint32_t number) { closed.push_back(number); });
        object_->registerMethod("Notify").onInterface(kName).implementedAs(
            [this](const std::string&, std::uint32_t replaced, const std::string&,
                   const std::string& title, const std::string& text,
                   const std::vector<std::string>& actions, const Hints& hints,
                   std::int32_t timeout) {
                shown.push_back({replaced, title, text, actions, hints, timeout});
                return replaced != 0 ? replaced : static_cast<std::uint32_t>(shown.size());
            });
        object_->registerSignal("ActionInvoked")
            .onInterface(kName)
            .withParameters<std::uint32_t, std::string>();
        object_->registerSignal("NotificationClosed")
            .onInterface(kName)
            .withParameters<std::uint32_t, std::uint32_t>();
        object_->finishRegistration();
    }

    void Serve() {
        while (bus_->processPendingRequest()) {
        }
    }

    std::unique_ptr<sdbus::IConnection> bus_;
    std::unique_ptr<sdbus::IObject> object_;
    std::optional<PollEventLoop::Reader> reader_;
};

class BusNoticesTest : public BusLoopTest {
protected:
    BusNoticesTest() : BusLoopTest("DBUS_SESSION_BUS_ADDRESS") {}

    void MakeNotices() {
        notices.emplace(loop, std::chrono::milliseconds(1));
        notices->onAction = [this](NoticeKind kind, NoticeAction action) {
            actions.emplace_back(kind, action);
        };
    }

    std::optional<Desktop> desktop;
    std::optional<TerminalNotices> notices;
    std::vector<std::pair<NoticeKind, NoticeAction>> actions;
};

TEST_F(BusNoticesTest, AthanStandsWithItsButtonsAndMarksSetOff) {
    desktop.emplace(loop);
    MakeNotices();
    EXPECT_TRUE(Until([&] { return notices->HasService(); }));
    notices->Show(NoticeKind::kAthan, kAthan);
    ASSERT_TRUE(Until([&] { return !desktop->shown.empty(); }));
    const Desktop::Shown& shown = desktop->shown[0];
    EXPECT_EQ(shown.title, "Asr");
    EXPECT_EQ(shown.text, "It is &lt;3:12&gt; PM");
    EXPECT_THAT(shown.actions, ElementsAre("default", "Open", "open", "Open", "stop", "Stop"));
    EXPECT_EQ(shown.timeout, 0);
    EXPECT_EQ(shown.hints.at("urgency").get<std::uint8_t>(), 2);
    EXPECT_TRUE(shown.hints.at("resident").get<bool>());
    EXPECT_EQ(shown.hints.at("desktop-entry").get<std::string>(), "horavex");
}

TEST_F(BusNoticesTest, ReminderGoesByItselfAndIsReplacedByTheNext) {
    desktop.emplace(loop);
    MakeNotices();
    notices->Show(NoticeKind::kPrayer, kReminder);
    ASSERT_TRUE(Until([&] { return desktop->shown.size() == 1; }));
    notices->Show(NoticeKind::kPrayer, kReminder);
    ASSERT_TRUE(Until([&] { return desktop->shown.size() == 2; }));
    EXPECT_EQ(desktop->shown[0].timeout, -1);
    EXPECT_TRUE(desktop->shown[0].hints.at("suppress-sound").get<bool>());
    EXPECT_EQ(desktop->shown[1].replaced, 1U);
}

TEST_F(BusNoticesTest, StopIsTheUsersAndTakesTheNoticeAway) {
    desktop.emplace(loop);
    MakeNotices();
    notices->Show(NoticeKind::kAthan, kAthan);
    ASSERT_TRUE(Until([&] { return desktop->shown.size() == 1; }));
    notices->Show(NoticeKind::kAthan, kAthan);  // once its number is known
    ASSERT_TRUE(Until([&] { return desktop->shown.size() == 2; }));
    desktop->Press(1, "stop");
    EXPECT_TRUE(Until([&] { return !actions.empty() && !desktop->closed.empty(); }));
    EXPECT_THAT(actions, ElementsAre(Pair(NoticeKind::kAthan, NoticeAction::kStop)));
    EXPECT_THAT(desktop->closed, ElementsAre(1U));
}

TEST_F(BusNoticesTest, OneThatTheUserPutsAwayTellsSo) {
    desktop.emplace(loop);
    MakeNotices();
    notices->Show(NoticeKind::kPrayer, kReminder);
    ASSERT_TRUE(Until([&] { return desktop->shown.size() == 1; }));
    notices->Show(NoticeKind::kPrayer, kReminder);
    ASSERT_TRUE(Until([&] { return desktop->shown.size() == 2; }));
    desktop->Dismiss(1);
    EXPECT_TRUE(Until([&] { return !actions.empty(); }));
    EXPECT_THAT(actions, ElementsAre(Pair(NoticeKind::kPrayer, NoticeAction::kDismiss)));
}

TEST_F(BusNoticesTest, PressCountsThatIsReadTogetherWithTheCloseBehindIt) {
    desktop.emplace(loop);
    MakeNotices();
    notices->Show(NoticeKind::kAthan, kAthan);
    ASSERT_TRUE(Until([&] { return desktop->shown.size() == 1; }));
    notices->Show(NoticeKind::kAthan, kAthan);
    ASSERT_TRUE(Until([&] { return desktop->shown.size() == 2; }));
    desktop->Press(1, "open");
    desktop->Dismiss(1);
    desktop->Flush();
    EXPECT_TRUE(Until([&] { return desktop->shown.size() == 3; })) << "it is to stand";
    EXPECT_THAT(actions, ElementsAre(Pair(NoticeKind::kAthan, NoticeAction::kOpen)));
}

TEST_F(BusNoticesTest, ServiceThatComesLaterIsThereAndOneThatEndsIsNot) {
    MakeNotices();
    loop.Rest(0);
    EXPECT_FALSE(notices->HasService());
    desktop.emplace(loop);
    EXPECT_TRUE(Until([&] { return notices->HasService(); }));
    desktop.reset();
    EXPECT_TRUE(Until([&] { return !notices->HasService(); }));
}

TEST_F(BusNoticesTest, WithoutABusNothingShowsAndNothingFails) {
    const ScopedVariable nowhere("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere/bus");
    MakeNotices();
    notices->Show(NoticeKind::kAthan, kAthan);
    notices->Withdraw(NoticeKind::kAthan);
    EXPECT_FALSE(notices->HasService());
    EXPECT_THAT(actions, IsEmpty());
}

TEST_F(BusNoticesTest, BusThatEndsTakesTheServiceAlongAndWakesNobody) {
    desktop.emplace(loop);
    MakeNotices();
    EXPECT_TRUE(Until([&] { return notices->HasService(); }));
    desktop.reset();
    daemon.Signal(SIGTERM);
    daemon.Wait();
    EXPECT_TRUE(Until([&] { return notices->Descriptor() == -1; }));
    EXPECT_FALSE(notices->HasService());
    notices->Show(NoticeKind::kAthan, kAthan);
}

TEST_F(BusNoticesTest, BusThatComesLateIsFoundAndGetsWhatIsToStand) {
    std::optional<ScopedVariable> nowhere;
    nowhere.emplace("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere/bus");
    MakeNotices();
    notices->Show(NoticeKind::kAthan, kAthan);
    EXPECT_FALSE(notices->HasService());
    nowhere.reset();
    desktop.emplace(loop);
    ASSERT_TRUE(Until([&] { return !desktop->shown.empty(); }));
    EXPECT_EQ(desktop->shown[0].title, "Asr");
}

TEST_F(BusNoticesTest, WhatStoodOnABusThatHasEndedStandsOnTheNext) {
    desktop.emplace(loop);
    MakeNotices();
    notices->Show(NoticeKind::kAthan, kAthan);
    ASSERT_TRUE(Until([&] { return desktop->shown.size() == 1; }));
    desktop.reset();
    daemon.Signal(SIGTERM);
    daemon.Wait();
    ASSERT_TRUE(Until([&] { return notices->Descriptor() == -1; }));
    const ChildProcess next({"dbus-daemon", "--nofork", "--print-address=1",
                             "--config-file=" + WriteBusConfiguration(folder.Path())},
                            {}, folder / "next", folder / "err");
    WaitUntil("the next bus", [this] { return ContentOf(folder / "next").ends_with('\n'); });
    desktop.emplace(loop);
    EXPECT_TRUE(Until([&] { return desktop->shown.size() == 1; }));
}

}  // namespace
}  // namespace horavex
