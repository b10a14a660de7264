// A year in Oslo, second by second around everything that is told of a prayer, with nights whose
// Isha comes behind midnight, quiet hours, prayers without an athan, and a computer that sleeps at
// any moment. Every prayer must be accounted for exactly once.

#include <algorithm>
#include <map>
#include <random>

#include "athan/prayer_day.h"
#include "engine/moments_around.h"
#include "store/city_search.h"

namespace horavex {
namespace {

constexpr int kReminder = 20;      // minutes
constexpr int kIqama = 15;         // minutes
constexpr double kWindow = 10.0;   // seconds
constexpr double kLongAgo = 3600;  // seconds

/// What was told of a prayer.
struct Account {
    int sounded = 0;
    int silent = 0;
    int missed = 0;
    int reminders = 0;
    int iqamas = 0;

    bool operator==(const Account&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Account& account) {
    return out << "sounded " << account.sounded << ", silent " << account.silent << ", missed "
               << account.missed << ", reminders " << account.reminders << ", iqamas "
               << account.iqamas;
}

/// Seconds since the year's first midnight.
using Second = std::int64_t;

struct Span {
    Second from;
    Second end;
};

struct RemindersYear : PrayerClock {
    RemindersYear() {
        platform.zoneRules.Add("Europe/Oslo", {2 * 3600, true});
        platform.clock.Set(firstDay);
        const auto cities = ListCities();
        LoadActiveSettings();
        ActiveSettings.CityIndex = SearchCities(cities, "Oslo").at(0).city->cityIndex;
        ActiveSettings.FajrAngle = 18.0;
        SaveActiveSettings();
        SaveOption(option::kAutomaticZone, 1);
        SaveOption(option::kHighLatitudeRule, HighLatitudeRule::kAngle);
        Begin();
        for (const char* name : {"athan", "fagr_athan"}) {
            AddSound(SoundPath(name), 3);
        }
        SaveAthanChoices(Choices());
        CollectPrayers();
    }

    static AthanChoices Choices() {
        AthanChoices choices;
        for (PrayerChoices& prayer : choices.prayers) {
            prayer.reminder = kReminder;
            prayer.iqama = kIqama;
        }
        choices.prayers[kZuhr].athan = false;
        choices.once = true;
        choices.silentMinutes = 10;
        choices.tellMissed = true;
        choices.quietHours = {.on = true, .from = 23 * 60, .to = 5 * 60};
        return choices;
    }

    void CollectPrayers() {
        for (int day = 0; day < 365; ++day) {
            const auto around = MomentsAround(firstDay + day);
            prayers.insert(prayers.end(), around.begin() + kPrayerCount,
                           around.begin() + 2 * kPrayerCount);
        }
        std::erase_if(prayers, [&](const DatedMoment& one) {
            return one.prayer == kShurooq || one.at < firstDay + 0.2 || one.at > firstDay + 364.5;
        });
        accounts.resize(prayers.size());
    }

    Second SecondOf(Date at) const {
        return static_cast<Second>(std::ceil((at - firstDay) * kSecondsPerDay - 1e-4));
    }
    Second Now() const { return SecondOf(platform.clock.Now()); }

    /// Around reminder, prayer and iqama.
    std::vector<Span> Windows() const {
        std::vector<Span> spans;
        for (const DatedMoment& prayer : prayers) {
            for (const int minutes : {-kReminder, 0, kIqama}) {
                const Second at = SecondOf(prayer.at + Minutes(minutes));
                spans.push_back({at - 1, at + 4});
            }
        }
        std::ranges::sort(spans, {}, &Span::from);
        return spans;
    }

    /// Two sleeps in three days, of a minute to seven hours; many begin or end near a prayer.
    std::vector<Span> Sleeps() {
        std::vector<Span> sleeps;
        Second awake = 0;
        for (int i = 0; i < 240; ++i) {
            const DatedMoment& prayer = prayers[random() % prayers.size()];
            const auto offset = static_cast<Second>(random() % 40) - 20;
            const auto length = static_cast<Second>(60 + random() % (7 * 3600));
            const Second near = SecondOf(prayer.at) + offset;
            sleeps.push_back(i % 2 == 0 ? Span{near, near + length} : Span{near - length, near});
        }
        std::ranges::sort(sleeps, {}, &Span::from);
        std::erase_if(sleeps, [&](const Span& sleep) {
            const bool overlaps = sleep.from < awake + 60;
            awake = overlaps ? awake : sleep.end;
            return overlaps;
        });
        return sleeps;
    }

    /// The prayer of which something is told now; its moment lies so many seconds ago, at most.
    Account& AccountOf(Prayer prayer, double least, double most) {
        for (std::size_t i = 0; i < prayers.size(); ++i) {
            const double since = (tickAt - prayers[i].at) * kSecondsPerDay;
            if (prayers[i].prayer == prayer && since >= least && since <= most) {
                return accounts[i];
            }
        }
        ADD_FAILURE() << "told of a prayer that there is not: " << prayer << " "
                      << (tickAt - firstDay) << " of " << prayers.size();
        return nobody;
    }

    static Prayer PrayerIn(const std::string& title) {
        for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
            if (title.find(kPrayerKeys[prayer]) != std::string::npos) {
                return static_cast<Prayer>(prayer);
            }
        }
        return kShurooq;
    }

    void AccountMissed(std::string title) {
        while (!title.empty()) {
            const std::size_t end = std::min(title.find(" \u00b7 "), title.size());
            ++AccountOf(PrayerIn(title.substr(0, end)), kWindow - 1.0, kLongAgo + 1.0).missed;
            title.erase(0, std::min(end + 4, title.size()));
        }
    }

    void AccountNotice(NoticeKind kind, const Notice& notice) {
        SCOPED_TRACE(notice.title + ": " + notice.text);
        const Prayer prayer = PrayerIn(notice.title);
        if (kind == NoticeKind::kMissed) {
            AccountMissed(notice.title);
        } else if (notice.text.starts_with("It is time")) {
            ++AccountOf(prayer, -1.0, kWindow + 1.0).silent;
        } else if (notice.title.starts_with("Iqama")) {
            ++AccountOf(prayer, kIqama * 60.0 - 1.0, kIqama * 60.0 + kWindow + 1.0).iqamas;
        } else if (prayer != kShurooq) {
            ++AccountOf(prayer, -kReminder * 60.0 - 1.0, -kReminder * 60.0 + kWindow + 1.0)
                  .reminders;
        }
    }

    /// One second, and what was told in it.
    void Tick() {
        const std::size_t notices = platform.notices.shown.size();
        const std::size_t sounds = platform.audioFile.opened.size();
        tickAt = platform.clock.Now();
        ticks.push_back(Now());
        PassSecond();
        for (std::size_t i = notices; i < platform.notices.shown.size(); ++i) {
            AccountNotice(platform.notices.shown[i].first, platform.notices.shown[i].second);
        }
        if (platform.audioFile.opened.size() > sounds) {
            ++AccountOf(static_cast<Prayer>(frmAzan->prayerIndex), -1.0, kWindow + 1.0).sounded;
        }
    }

    void RunAwake(const Span& span) {
        if (Now() < span.from) {
            platform.clock.Set(firstDay + Seconds(static_cast<double>(span.from)));
        }
        while (Now() < span.end) {
            Tick();
        }
        if (IsPlaying() && span.end - span.from > 6) {
            platform.audioPlayer.PlayToTheEnd();
        }
    }

    /// The windows that no sleep takes, and the second in which each sleep ends.
    void RunYear() {
        std::vector<Span> awake;
        const std::vector<Span> sleeps = Sleeps();
        for (Span window : Windows()) {
            for (const Span& sleep : sleeps) {
                if (sleep.from < window.end && sleep.end > window.from) {
                    if (sleep.from > window.from) {
                        awake.push_back({window.from, sleep.from});
                    }
                    window.from = std::min(sleep.end, window.end);
                }
            }
            awake.push_back(window);
        }
        for (const Span& sleep : sleeps) {
            awake.push_back({sleep.end, sleep.end + 1});
            awake.push_back({sleep.from - 1, sleep.from});
        }
        std::ranges::sort(awake, {}, &Span::from);
        for (const Span& span : awake) {
            RunAwake(span);
        }
    }

    /// The first second from one on in which the clock ticked; none where it never did again.
    std::optional<Second> TickFrom(Second second) const {
        const auto tick = std::ranges::lower_bound(ticks, second);
        return tick == ticks.end() ? std::nullopt : std::optional(*tick);
    }

    static bool IsQuietSecond(Second second) {
        const Second ofDay = second % 86400;
        return ofDay >= 23 * 3600 || ofDay < 5 * 3600;
    }

    bool TicksIn(Second from) const {
        const auto tick = TickFrom(from);
        return tick && *tick < from + static_cast<Second>(kWindow);
    }

    Account Expected(const DatedMoment& prayer) const {
        Account expected;
        const Second at = SecondOf(prayer.at);
        expected.reminders = TicksIn(SecondOf(prayer.at - Minutes(kReminder))) ? 1 : 0;
        expected.iqamas = TicksIn(SecondOf(prayer.at + Minutes(kIqama))) ? 1 : 0;
        const auto tick = TickFrom(at);
        if (TicksIn(at)) {
            const bool isSilent = prayer.prayer == kZuhr || IsQuietSecond(*tick);
            ++(isSilent ? expected.silent : expected.sounded);
        } else if (tick && static_cast<double>(*tick - at) <= kLongAgo) {
            expected.missed = 1;
        }
        return expected;
    }

    const Date firstDay = DateSerial(2026, 1, 1);
    std::minstd_rand random{20260101};
    std::vector<DatedMoment> prayers;
    std::vector<Account> accounts;
    std::vector<Second> ticks;
    Date tickAt = 0.0;
    Account nobody;
};

TEST_F(RemindersYear, EveryPrayerIsAccountedForOnce) {
    RunYear();
    Account sum;
    for (std::size_t i = 0; i < prayers.size() && !HasFailure(); ++i) {
        EXPECT_EQ(accounts[i], Expected(prayers[i]))
            << kPrayerKeys[prayers[i].prayer] << " of day " << (prayers[i].at - firstDay);
        sum.sounded += accounts[i].sounded;
        sum.silent += accounts[i].silent;
        sum.missed += accounts[i].missed;
        sum.reminders += accounts[i].reminders;
        sum.iqamas += accounts[i].iqamas;
    }
    EXPECT_GT(sum.sounded, 800);
    EXPECT_GT(sum.silent, 450);
    EXPECT_GT(sum.missed, 20);
    EXPECT_GT(sum.reminders, 1500);
    EXPECT_GT(sum.iqamas, 1500);
    EXPECT_TRUE(platform.dialogs.messages.empty());
}

}  // namespace
}  // namespace horavex
