#include "platform/zone_rules.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/fixed_zone_rules.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kBerlin = "Europe/Berlin";
constexpr UtcSeconds kSpring = 1774746000;  // 2026-03-29 01:00 UTC: from 2:00 to 3:00
constexpr UtcSeconds kAutumn = 1792890000;  // 2026-10-25 01:00 UTC: from 3:00 to 2:00

const ZoneOffset kWinter = {3600, false};
const ZoneOffset kSummer = {7200, true};

struct ZoneRulesTest : testing::Test {
    ZoneRulesTest() {
        rules.Add(kBerlin, kWinter);
        rules.Turn(kBerlin, kSpring, kSummer);
        rules.Turn(kBerlin, kAutumn, kWinter);
        rules.Add("Far/East", {14 * 3600, false});
        rules.Add("Far/West", {-12 * 3600, false});
    }

    UtcSeconds MomentIn(const std::string& zone, Date day, int hour, int minute, int second) {
        return MomentOf(rules, zone, day + TimeSerial(hour, minute, second));
    }

    FixedZoneRules rules;
};

TEST_F(ZoneRulesTest, OffsetTurnsWithTheSecondOfTheChange) {
    EXPECT_EQ(rules.OffsetAt(kBerlin, kSpring - 1), kWinter);
    EXPECT_EQ(rules.OffsetAt(kBerlin, kSpring), kSummer);
    EXPECT_EQ(rules.OffsetAt(kBerlin, kAutumn), kWinter);
}

TEST_F(ZoneRulesTest, UnknownZoneIsAFaultThatNamesIt) {
    try {
        rules.OffsetAt("Europe/Berlun", 0);
        FAIL();
    } catch (const UnknownZoneFault& fault) {
        EXPECT_STREQ(fault.what(), "The zone database has no zone \"Europe/Berlun\".");
    }
    EXPECT_THROW(rules.ChangesBetween("", 0, 1), UnknownZoneFault);
}

TEST_F(ZoneRulesTest, ChangesAreFromTheFirstMomentOnAndBeforeTheEnd) {
    const ZoneChange spring = {kSpring, kWinter, kSummer};
    const ZoneChange autumn = {kAutumn, kSummer, kWinter};
    EXPECT_THAT(rules.ChangesBetween(kBerlin, kSpring, kAutumn + 1), ElementsAre(spring, autumn));
    EXPECT_THAT(rules.ChangesBetween(kBerlin, kSpring, kAutumn), ElementsAre(spring));
    EXPECT_THAT(rules.ChangesBetween(kBerlin, kSpring + 1, kAutumn), IsEmpty());
}

TEST_F(ZoneRulesTest, MomentOfALocalTimeTakesTheOffsetOfThatTime) {
    EXPECT_EQ(MomentIn(kBerlin, DateSerial(2026, 1, 1), 1, 0, 0), 1767225600);
    EXPECT_EQ(MomentIn(kBerlin, DateSerial(2026, 3, 29), 1, 59, 59), kSpring - 1);
    EXPECT_EQ(MomentIn(kBerlin, DateSerial(2026, 3, 29), 3, 0, 0), kSpring);
    EXPECT_EQ(MomentIn(kBerlin, DateSerial(2026, 10, 25), 3, 0, 0), kAutumn + 3600);
    EXPECT_EQ(MomentIn("Far/East", DateSerial(1970, 1, 1), 14, 0, 0), 0);
    EXPECT_EQ(MomentIn("Far/West", DateSerial(1969, 12, 31), 12, 0, 0), 0);
    EXPECT_EQ(MomentIn("Far/West", DateSerial(1969, 12, 31), 11, 59, 59), -1);
}

TEST_F(ZoneRulesTest, TimeThatIsLeftOutCountsOnTheClockBefore) {
    EXPECT_EQ(MomentIn(kBerlin, DateSerial(2026, 3, 29), 2, 30, 0), kSpring + 1800);
    EXPECT_EQ(MomentIn(kBerlin, DateSerial(2026, 3, 29), 2, 0, 0), kSpring);
}

TEST_F(ZoneRulesTest, TimeThatComesTwiceIsTheEarlierOne) {
    EXPECT_EQ(MomentIn(kBerlin, DateSerial(2026, 10, 25), 2, 30, 0), kAutumn - 1800);
    EXPECT_EQ(MomentIn(kBerlin, DateSerial(2026, 10, 25), 2, 0, 0), kAutumn - 3600);
}

TEST_F(ZoneRulesTest, LocalDateIsWhatTheZonesClockShows) {
    const Date spring = DateSerial(2026, 3, 29);
    EXPECT_EQ(LocalDateOf(rules, kBerlin, kSpring - 1), spring + TimeSerial(1, 59, 59));
    EXPECT_EQ(LocalDateOf(rules, kBerlin, kSpring), spring + TimeSerial(3, 0, 0));
    EXPECT_EQ(LocalDateOf(rules, "Far/West", 0), DateSerial(1969, 12, 31) + TimeSerial(12, 0, 0));
}

TEST_F(ZoneRulesTest, YearIsThatOfTheZonesClock) {
    EXPECT_THAT(ChangesOfYear(rules, kBerlin, 2026), testing::SizeIs(2));
    EXPECT_THAT(ChangesOfYear(rules, kBerlin, 2027), IsEmpty());
    constexpr UtcSeconds kTurnOfYear = 1798711200;  // 2026-12-31 10:00 UTC, 0:00 there
    rules.Turn("Far/East", kTurnOfYear, {14 * 3600 + 1800, true});
    EXPECT_THAT(ChangesOfYear(rules, "Far/East", 2026), IsEmpty());
    EXPECT_THAT(ChangesOfYear(rules, "Far/East", 2027), testing::SizeIs(1));
}

}  // namespace
}  // namespace horavex
