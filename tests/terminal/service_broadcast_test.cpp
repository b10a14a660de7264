#include "terminal/service/service_broadcast.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "support/scoped_variable.h"
#include "support/test_platform.h"
#include "terminal/service/service_notices.h"

namespace horavex {
namespace {

using testing::IsEmpty;

class ServiceBroadcastTest : public testing::Test {
protected:
    std::string TakeLog() {
        std::string told = out.str();
        out.str("");
        return told;
    }

    TestPlatform platform;
    const ScopedVariable noBus{"DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere/bus"};
    std::ostringstream out;
    const ServiceLog log{out, true, [] { return 0.0; }};
    ServiceBroadcast broadcast{log, [](const std::function<void()>&) {}};
};

TEST_F(ServiceBroadcastTest, ArrivalIsTold) {
    broadcast.TellPrayerArrived("Asr", "2026-11-21T14:38:00+02:00");
    EXPECT_EQ(TakeLog(), "<5>Asr has come, at 2026-11-21T14:38:00+02:00\n");
}

TEST_F(ServiceBroadcastTest, RemindersAndIqamasAreTold) {
    broadcast.TellReminderDue("reminder", "Asr", 10);
    broadcast.TellReminderDue("iqama", "Asr", 20);
    EXPECT_EQ(TakeLog(), "<5>Asr comes in 10 min\n<5>iqama of Asr\n");
}

TEST_F(ServiceBroadcastTest, AthansBeginningAndEndAreToldOnce) {
    ToldState state;
    broadcast.Publish(state);
    EXPECT_THAT(TakeLog(), IsEmpty());
    state.athanPlaying = true;
    broadcast.Publish(state);
    broadcast.Publish(state);
    EXPECT_EQ(TakeLog(), "<6>the athan begins\n");
    broadcast.TellAthanStopped();
    EXPECT_EQ(TakeLog(), "<6>the athan is over\n");
}

TEST_F(ServiceBroadcastTest, ReasonOfSilenceIsToldOnceForEachAthan) {
    ToldState state;
    platform.audioPlayer.hasDevice = false;
    platform.audioPlayer.Start();
    broadcast.Publish(state);
    EXPECT_THAT(TakeLog(), IsEmpty()) << "nothing is to be heard";
    for (int athan = 0; athan < 2; ++athan) {
        state.athanPlaying = true;
        for (int second = 0; second < 3; ++second) {
            broadcast.Publish(state);
        }
        EXPECT_EQ(TakeLog(),
                  "<6>the athan begins\n"
                  "<4>the athan is not heard: no device\n");
        state.athanPlaying = false;
        broadcast.Publish(state);
    }
}

TEST_F(ServiceBroadcastTest, QuietTimesAreTold) {
    ToldState state;
    state.quietUntil = "2026-11-21T20:00:00+02:00";
    broadcast.Publish(state);
    broadcast.Publish(state);
    EXPECT_EQ(TakeLog(), "<6>quiet until 2026-11-21T20:00:00+02:00\n");
    state.quietUntil.clear();
    broadcast.Publish(state);
    EXPECT_EQ(TakeLog(), "<6>no longer quiet\n");
}

TEST_F(ServiceBroadcastTest, MissedPrayersAreToldAndOtherNoticesAreNot) {
    PollEventLoop loop;
    ServiceNotices notices(loop, log);
    Notice notice;
    notice.title = "Asr 2:38 PM";
    notices.Show(NoticeKind::kPrayer, notice);
    EXPECT_THAT(TakeLog(), IsEmpty());
    notices.Show(NoticeKind::kMissed, notice);
    EXPECT_EQ(TakeLog(), "<5>missed: Asr 2:38 PM\n");
}

}  // namespace
}  // namespace horavex
