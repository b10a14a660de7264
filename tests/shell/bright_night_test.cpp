// A night in Oslo whose Isha comes behind midnight, second by second around what happens in it.

#include <set>

#include "athan/athan_state.h"
#include "base/int16.h"
#include "engine/day_driver.h"
#include "shell/tick.h"
#include "store/city_search.h"
#include "store/options.h"
#include "support/program_test.h"

namespace horavex {
namespace {

using testing::ElementsAre;

using testing::StartsWith;

constexpr std::int32_t kHour = 3600;
constexpr int kDaySeconds = 86400;

struct BrightNight : ProgramTest {
    BrightNight() {
        platform.zoneRules.Add("Europe/Oslo", {2 * kHour, true});
        SetClock(2026, 6, 21, 20, 0, 0);
        const auto cities = ListCities();
        LoadActiveSettings();
        ActiveSettings.CityIndex = SearchCities(cities, "Oslo").at(0).city->cityIndex;
        ActiveSettings.FajrAngle = 18.0;
        SaveActiveSettings();
        SaveOption(option::kAutomaticZone, 1);
        SaveOption(option::kHighLatitudeRule, HighLatitudeRule::kAngle);
        StartAgain();
        isha = SecondsOf(ShownDay.moments[kIsha]);
        fajr = SecondsOf(TakeDayView(evening + 1.0)->moments[kFajr]) + kDaySeconds;
    }

    static int SecondsOf(const Moment& moment) {
        return static_cast<int>(std::lround(moment.hours * 3600.0));
    }

    /// Seconds from the evening's own midnight on: every minute, and each around a moment.
    std::set<int> SecondsOfNight() const {
        std::set<int> seconds;
        for (int second = 23 * kHour; second < 29 * kHour; second += 60) {
            seconds.insert(second);
        }
        for (const int moment : {isha, fajr, kDaySeconds}) {
            for (int second = moment - 3; second < moment + 13; ++second) {
                seconds.insert(second);
            }
        }
        return seconds;
    }

    void TickAt(int second) {
        platform.clock.Set(evening + static_cast<double>(second) / kDaySeconds);
        athanActive = second < athanEnd ? kTrue : kFalse;
        RunTick({RefreshAll, ShowDay, [&](Alert alert) { Ring(alert, second); }});
    }

    void Ring(Alert alert, int second) {
        rings.push_back({alert, second});
        athanEnd = second + 60;
    }

    const Date evening = DateSerial(2026, 6, 21);
    int isha = 0;  // seconds from the midnight that begins the evening's day
    int fajr = 0;  // the next one
    int athanEnd = 0;
    std::vector<std::pair<Alert, int>> rings;
};

std::string Remaining(int seconds) {
    return std::to_string(seconds / 3600) + ":" + std::to_string(seconds / 60 % 60) + ":" +
           std::to_string(seconds % 60);
}

// Sunset 22:44, sunrise 3:54 (almanac); 18 sixtieths of the night in between are 1:33.
TEST_F(BrightNight, MomentsLieWhereTheRuleOfTheAnglePutsThem) {
    EXPECT_NEAR(isha, kDaySeconds + 16 * 60 + 40, 60);
    EXPECT_NEAR(fajr, kDaySeconds + 2 * kHour + 21 * 60, 90);
    EXPECT_THAT(frmMain->lblTime(kIsha).Caption(), StartsWith("12:16 AM, next day"));
}

TEST_F(BrightNight, IshaAndTheFajrBehindItAreEachCalledOnceAtTheirOwnSecond) {
    for (const int second : SecondsOfNight()) {
        TickAt(second);
    }
    EXPECT_THAT(rings, ElementsAre(std::pair(Alert::kIsha, isha), std::pair(Alert::kFajr, fajr)));
}

TEST_F(BrightNight, CountdownGoesOnOverMidnightToIshaAndThenToFajr) {
    for (const int second : SecondsOfNight()) {
        TickAt(second);
        const int next = second < isha ? isha : fajr;
        if (second < fajr) {
            ASSERT_EQ(frmMain->lblRemaining.Caption(), Remaining(next - second)) << second;
            ASSERT_THAT(frmMain->lblNextAthan.Caption(),
                        StartsWith(second < isha ? "Isha" : "Fajr"))
                << second;
        }
    }
}

}  // namespace
}  // namespace horavex
