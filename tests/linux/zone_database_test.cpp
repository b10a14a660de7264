// Against the zone database of the machine; the dates are those of its 2025 editions.

#include "linux/zone_database.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

struct ZoneDatabaseTest : testing::Test {
    /// Hours ahead of Greenwich at noon of a day of 2026.
    double HoursOn(const std::string& zone, int month, int day) {
        const UtcSeconds noon = MomentOf(rules, zone, DateSerial(2026, month, day) + 0.5);
        return rules.OffsetAt(zone, noon).seconds / 3600.0;
    }

    /// The last local seconds before the changes of 2026.
    std::vector<Date> LastSecondsOf(const std::string& zone) {
        std::vector<Date> dates;
        for (const ZoneChange& change : ChangesOfYear(rules, zone, 2026)) {
            dates.push_back(LocalDateOf(rules, zone, change.moment - 1));
        }
        return dates;
    }

    static Date Last(int month, int day, int hour) {
        return DateSerial(2026, month, day) + TimeSerial(hour, 59, 59);
    }

    ZoneDatabase rules;
};

TEST_F(ZoneDatabaseTest, CairoHasSummerFromAFridayToTheEndOfAThursday) {
    EXPECT_THAT(LastSecondsOf("Africa/Cairo"), ElementsAre(Last(4, 23, 23), Last(10, 29, 23)));
    EXPECT_EQ(HoursOn("Africa/Cairo", 1, 1), 2.0);
    EXPECT_EQ(HoursOn("Africa/Cairo", 7, 15), 3.0);
}

TEST_F(ZoneDatabaseTest, CasablancaIsAnHourEarlierInRamadan) {
    EXPECT_THAT(LastSecondsOf("Africa/Casablanca"), ElementsAre(Last(2, 15, 2), Last(3, 22, 1)));
    EXPECT_EQ(HoursOn("Africa/Casablanca", 1, 1), 1.0);
    EXPECT_EQ(HoursOn("Africa/Casablanca", 3, 1), 0.0);
    EXPECT_EQ(HoursOn("Africa/Casablanca", 7, 15), 1.0);
}

TEST_F(ZoneDatabaseTest, DublinTurnsAsLondonDoes) {
    EXPECT_THAT(LastSecondsOf("Europe/Dublin"), ElementsAre(Last(3, 29, 0), Last(10, 25, 1)));
    EXPECT_EQ(HoursOn("Europe/Dublin", 1, 1), 0.0);
    EXPECT_EQ(HoursOn("Europe/Dublin", 7, 15), 1.0);
}

TEST_F(ZoneDatabaseTest, LordHoweTurnsByHalfAnHour) {
    EXPECT_THAT(LastSecondsOf("Australia/Lord_Howe"), ElementsAre(Last(4, 5, 1), Last(10, 4, 1)));
    EXPECT_EQ(HoursOn("Australia/Lord_Howe", 1, 1), 11.0);
    EXPECT_EQ(HoursOn("Australia/Lord_Howe", 7, 15), 10.5);
}

TEST_F(ZoneDatabaseTest, GazaTurnsOnSaturdays) {
    EXPECT_THAT(LastSecondsOf("Asia/Gaza"), ElementsAre(Last(3, 28, 1), Last(10, 24, 1)));
    EXPECT_EQ(HoursOn("Asia/Gaza", 7, 15), 3.0);
}

TEST_F(ZoneDatabaseTest, KiritimatiIsFourteenHoursAhead) {
    EXPECT_THAT(LastSecondsOf("Pacific/Kiritimati"), IsEmpty());
    EXPECT_EQ(HoursOn("Pacific/Kiritimati", 1, 1), 14.0);
}

TEST_F(ZoneDatabaseTest, OldOffsetsAndThoseOfFarYearsAreKnown) {
    const auto hours = [&](const char* zone, int year) {
        return rules.OffsetAt(zone, MomentOf(rules, zone, DateSerial(year, 7, 1))).seconds / 3600.0;
    };
    EXPECT_EQ(hours("Europe/Moscow", 2012), 4.0);
    EXPECT_EQ(hours("Europe/Moscow", 2026), 3.0);
    EXPECT_EQ(hours("Europe/Berlin", 2150), 2.0);
    EXPECT_THAT(ChangesOfYear(rules, "Europe/Berlin", 2150), SizeIs(2));
}

TEST_F(ZoneDatabaseTest, ChangeAtTheEndOfTheSpanDoesNotCount) {
    const auto changes = ChangesOfYear(rules, "Europe/Berlin", 2026);
    ASSERT_THAT(changes, SizeIs(2));
    const UtcSeconds spring = changes[0].moment;
    const UtcSeconds autumn = changes[1].moment;
    EXPECT_THAT(rules.ChangesBetween("Europe/Berlin", spring, autumn), ElementsAre(changes[0]));
    EXPECT_THAT(rules.ChangesBetween("Europe/Berlin", spring + 1, autumn + 1),
                ElementsAre(changes[1]));
    EXPECT_EQ(changes[0], (ZoneChange{spring, {3600, false}, {7200, true}}));
}

TEST_F(ZoneDatabaseTest, ZonesWithoutChangesHaveNone) {
    EXPECT_THAT(ChangesOfYear(rules, "UTC", 2026), IsEmpty());
    EXPECT_THAT(ChangesOfYear(rules, "Etc/GMT+5", 2026), IsEmpty());
    EXPECT_EQ(HoursOn("Etc/GMT+5", 1, 1), -5.0);
}

TEST_F(ZoneDatabaseTest, UnknownNameIsAFaultThatSaysSo) {
    EXPECT_THAT([&] { rules.OffsetAt("Africa/Kairo", 0); },
                testing::ThrowsMessage<UnknownZoneFault>(
                    "The zone database has no zone \"Africa/Kairo\"."));
    EXPECT_THROW(rules.ChangesBetween("Africa/Kairo", 0, 1), UnknownZoneFault);
}

TEST_F(ZoneDatabaseTest, WhatIsNoNameIsUnknown) {
    const std::string zone = "Europe/Berlin";
    const std::vector<std::string> names = {"",
                                            "../zoneinfo/" + zone,
                                            "Europe/../" + zone,
                                            "/usr/share/zoneinfo/" + zone,
                                            "./" + zone,
                                            ":" + zone,
                                            "file:" + zone,
                                            "libc:localtime",
                                            "Africa",
                                            "Fixed/UTC+01:00:00",
                                            "tzdata.zi",
                                            "leapseconds",
                                            zone + std::string("\0x", 2),
                                            zone + "\n",
                                            std::string(100000, 'A')};
    for (const std::string& name : names) {
        EXPECT_THROW(rules.OffsetAt(name, 0), UnknownZoneFault) << name.substr(0, 40);
    }
}

}  // namespace
}  // namespace horavex
