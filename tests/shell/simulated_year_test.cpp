// The clock through a whole year: every second near a prayer, the alarm, midnight and New Year,
// coarse steps elsewhere. The ticks are the real ones; only the alert is written down instead.

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "athan/athan_state.h"
#include "base/int16.h"
#include "engine/current_year.h"
#include "engine/day_driver.h"
#include "shell/tick.h"
#include "support/program_test.h"

namespace horavex {
namespace {

using testing::ElementsAre;

constexpr int kDaySeconds = 86400;
constexpr int kCoarseStep = 3600;  // seconds
constexpr int kBefore = 2;         // seconds watched before a moment and behind it
constexpr int kBehind = 12;
constexpr int kNearMidnight = 5;

/// What becomes of a day's athans.
struct AthanDay {
    int seconds;      // how long one that was called stays up
    int firstCalls;   // how often Fajr is called in its ten seconds
    int othersCalls;  // and each of the other four
};

/// In turn: shut within the second; short; long; left up by a user who never stops it.
constexpr AthanDay kAthanDays[] = {{0, 10, 10}, {4, 3, 3}, {3600, 1, 1}, {kDaySeconds, 1, 0}};

const AthanDay& AthansOf(int day) {
    return kAthanDays[static_cast<std::size_t>(day) % std::size(kAthanDays)];
}

struct SimulatedYear : ProgramTest {
    void StartYear(int newYear) {
        year = newYear;
        firstDay = DateSerial(year, 1, 1);
        SetClock(year, 1, 1, 0, 0, 0);
        StartAgain();
        counted = NextPrayer;
    }

    void RunDays() {
        const int days = static_cast<int>(DateSerial(year + 1, 1, 1) - firstDay);
        for (int day = 0; day < days && !HasFatalFailure(); ++day) {
            RunDay(day);
        }
    }

    void RunDay(int day) {
        BeginDay(day);
        for (const int second : SecondsOfDay()) {
            TickAt(second);
            ASSERT_FALSE(HasFatalFailure());
        }
        EXPECT_EQ(LastRefreshDate, today - day % 2) << "every second day is refreshed";
        const AthanDay& athans = AthansOf(day);
        ASSERT_THAT(calls, ElementsAre(athans.firstCalls, 0, athans.othersCalls, athans.othersCalls,
                                       athans.othersCalls, athans.othersCalls, 0, 10))
            << "day " << day;
    }

    /// Another alarm every day, its box ticked on every other; never at midnight, some of whose
    /// seconds go by under the progress window.
    void BeginDay(int day) {
        today = firstDay + day;
        athanSeconds = AthansOf(day).seconds;
        athanActive = kFalse;
        calls = {};
        for (SettingsRecord* settings : {&Settings, &ActiveSettings}) {
            settings->AlarmTime = static_cast<std::int16_t>(1 + day * 5 % 287);
            settings->AlarmEnabled = static_cast<std::int16_t>(day % 2);
        }
    }

    std::set<int> SecondsOfDay() const {
        std::set<int> seconds;
        const auto add = [&seconds](int from, int to) {
            for (int second = std::max(from, 0); second <= std::min(to, kDaySeconds - 1);
                 ++second) {
                seconds.insert(second);
            }
        };
        for (int second = 0; second < kDaySeconds; second += kCoarseStep) {
            seconds.insert(second);
        }
        add(0, kNearMidnight);
        add(kDaySeconds - kNearMidnight, kDaySeconds);
        add(AlarmSecond() - kBefore, AlarmSecond() + kBehind);
        for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
            const int second = static_cast<int>(MomentOf(prayer, Row()));
            add(second - kBefore, second + kBehind);
        }
        return seconds;
    }

    /// A second that went by under the progress window has no tick.
    void TickAt(int second) {
        const Date moment = today + static_cast<double>(second) / kDaySeconds;
        if (moment < platform.clock.Now()) {
            return;
        }
        platform.clock.Set(moment);
        EndAthan(second);
        const bool wasActive = athanActive != kFalse;
        alerts.clear();
        platform.face.variables.clear();
        RunTick({[this] { Refresh(); }, ShowDay, [this](Alert alert) { Ring(alert); }});
        CheckTick(wasActive);
    }

    void Refresh() {
        ++refreshes;
        RefreshAll();
    }

    void Ring(Alert alert) {
        alerts.push_back(alert);
        ++calls.at(static_cast<std::size_t>(alert));
        if (alert != Alert::kDailyAlarm && athanSeconds > 0) {
            athanActive = kTrue;
            athanEnd = Second() + athanSeconds;
        }
    }

    void EndAthan(int second) {
        if (second >= athanEnd) {
            athanActive = kFalse;
        }
    }

    // What a tick should have done, read off the table of the year.

    void CheckTick(bool wasActive) {
        const std::optional<Alert> arrived = Arrived();
        counted = static_cast<std::int16_t>(counted + (arrived ? 1 : 0));
        ASSERT_EQ(alerts, ExpectedAlerts(arrived, wasActive)) << Now();
        ASSERT_EQ(NextPrayer, counted) << Now();
        ASSERT_EQ(TodayDate, today) << Now();
        ASSERT_EQ(frmMain->lblNextAthan.Caption(), Sentence()) << Now();
        ASSERT_EQ(frmMain->lblRemaining.Caption(), Remaining()) << Now();
        ASSERT_EQ(platform.face.Value("_root.sNextRemaining"), "Remaining: " + Remaining());
    }

    std::vector<Alert> ExpectedAlerts(std::optional<Alert> arrived, bool wasActive) const {
        std::vector<Alert> expected;
        if (arrived && *arrived != Alert::kShurooq && !wasActive) {
            expected.push_back(*arrived);
        }
        if (Second() >= AlarmSecond() && Second() < AlarmSecond() + 10) {
            expected.push_back(Alert::kDailyAlarm);
        }
        return expected;
    }

    std::optional<Alert> Arrived() const {
        for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
            const double since = Second() - MomentOf(prayer, Row());
            if (since >= 0.0 && since < 10.0) {
                return static_cast<Alert>(prayer);
            }
        }
        return std::nullopt;
    }

    struct Next {
        const char* name;
        double moment;  // seconds of its day
    };

    Next NextOne() const {
        constexpr std::pair<std::size_t, const char*> kWaitedFor[] = {{kFajr, "Fajr"},
                                                                      {kZuhr, "Zuhr"},
                                                                      {kAsr, "Asr"},
                                                                      {kMaghrib, "Maghrib"},
                                                                      {kIsha, "Isha"}};
        for (const auto& [prayer, name] : kWaitedFor) {
            const double moment = std::nearbyint(MomentOf(prayer, Row()));
            if (moment > Second()) {
                return {name, moment};
            }
        }
        return {"Fajr", std::nearbyint(MomentOf(kFajr, std::min(Row() + 1, kYearRows - 1)))};
    }

    std::string Sentence() const {
        const Next next = NextOne();
        return std::string(next.name) + " at " +
               platform.formats.LongTime(next.moment / kDaySeconds);
    }

    std::string Remaining() const {
        const int seconds =
            (static_cast<int>(NextOne().moment) - Second() + kDaySeconds) % kDaySeconds;
        return std::to_string(seconds / 3600) + ":" + std::to_string(seconds / 60 % 60) + ":" +
               std::to_string(seconds % 60);
    }

    std::size_t Row() const {
        return static_cast<std::size_t>(today - DateSerial(CivilFromDate(today).year, 1, 1));
    }
    int Second() const { return SecondOfDay(platform.clock.Now()); }
    static double MomentOf(std::size_t prayer, std::size_t row) {
        return Times[prayer][row] * 3600.0;
    }
    static int AlarmSecond() { return ActiveSettings.AlarmTime * 300; }
    std::string Now() const {
        return platform.formats.ShortDate(today) + " " +
               platform.formats.LongTime(platform.clock.Now());
    }

    /// The first seconds of the year that follows.
    void RunIntoNewYear() {
        const auto formerTimes = Times;
        BeginDay(static_cast<int>(DateSerial(year + 1, 1, 1) - firstDay));
        TickAt(0);
        EXPECT_EQ(refreshes, 1);
        EXPECT_EQ(CurrentYear, year + 1);
        EXPECT_NE(Times[kFajr], formerTimes[kFajr]);
        EXPECT_EQ(Second(), 3) << "behind the progress window";
        for (int second = 4; second < 20; ++second) {
            TickAt(second);
        }
        EXPECT_EQ(refreshes, 1);
    }

    int year = 0;
    Date firstDay = 0.0;
    Date today = 0.0;
    int athanSeconds = 0;
    int athanEnd = 0;            // second of the day
    std::int16_t counted = 0;    // what NextPrayer should hold
    int refreshes = 0;           // recalculations for another year
    std::array<int, 8> calls{};  // alerts of the day, by index
    std::vector<Alert> alerts;
};

TEST_F(SimulatedYear, CommonYearCallsEachAthanAndAlarmInItsTenSeconds) {
    StartYear(2027);
    RunDays();
    EXPECT_EQ(refreshes, 0);
    EXPECT_EQ(frmMain->lblNextAthan.Caption(), "Fajr at 12:00:00 AM")
        << "the row behind the last day was never filled";
    RunIntoNewYear();
}

TEST_F(SimulatedYear, LeapYearWithDaylightSavingDoesSoToo) {
    LoadActiveSettings();
    ActiveSettings.DstEnabled = 1;
    ActiveSettings.DstStart = 92;
    ActiveSettings.DstEnd = 302;
    SaveActiveSettings();
    Settings = ActiveSettings;
    SaveWorkingSettings();
    StartYear(2028);
    RunDays();
    EXPECT_EQ(refreshes, 0);
    EXPECT_EQ(frmMain->lblNextAthan.Caption(),
              "Fajr at " + platform.formats.LongTime(TodayTimes[kFajr]))
        << "the last row serves for tomorrow";
    RunIntoNewYear();
}

}  // namespace
}  // namespace horavex
