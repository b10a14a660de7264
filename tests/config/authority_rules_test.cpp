#include "config/authority_rules.h"

#include "support/data_folder.h"
#include "support/program_copy.h"
#include "support/test_platform.h"

namespace horavex {
namespace {

struct AuthorityRules : testing::Test {
    AuthorityRules() { CopyBuiltProgramFolder(platform.files); }

    MomentRules Rules(const char* key, int year = 2026) {
        return RulesOf(*AuthorityOfKey(key), year);
    }

    TestPlatform platform;
};

std::size_t RowOfDay(int year, int month, int day) {
    return static_cast<std::size_t>(DateSerial(year, month, day) - DateSerial(year, 1, 1));
}

TEST_F(AuthorityRules, OfAnglesAloneAreNone) {
    EXPECT_EQ(Rules("mwl"), MomentRules{});
}

TEST_F(AuthorityRules, TakeMarginsAsOffsets) {
    EXPECT_EQ(Rules("turkey").offsets, (Margins{0, -7, 5, 4, 7, 0}));
}

TEST_F(AuthorityRules, TakeTheAngleOfMaghrib) {
    EXPECT_EQ(Rules("tehran").maghribAngle, 4.5);
}

TEST_F(AuthorityRules, IntervalsThatAreOneNeedNoRamadan) {
    const MomentRules rules = Rules("qatar");
    EXPECT_EQ(rules.ishaInterval, 90);
    EXPECT_TRUE(rules.ramadan.none());
}

// The published Ramadan of 1447: 18 February to 19 March 2026.
TEST_F(AuthorityRules, LongerIntervalCountsOnTheDaysOfThePublishedRamadan) {
    const MomentRules rules = Rules("umm-al-qura");
    EXPECT_EQ(rules.ishaInterval, 90);
    EXPECT_EQ(rules.ishaIntervalRamadan, 120);
    EXPECT_EQ(rules.ramadan.count(), 30U);
    EXPECT_FALSE(rules.ramadan[RowOfDay(2026, 2, 17)]);
    EXPECT_TRUE(rules.ramadan[RowOfDay(2026, 2, 18)]);
    EXPECT_TRUE(rules.ramadan[RowOfDay(2026, 3, 19)]);
    EXPECT_FALSE(rules.ramadan[RowOfDay(2026, 3, 20)]);
}

// 1451 and 1452: 5 January to 3 February and 26 December 2030 on.
TEST_F(AuthorityRules, YearMayHoldTwoRamadans) {
    const MomentRules rules = Rules("umm-al-qura", 2030);
    EXPECT_TRUE(rules.ramadan[RowOfDay(2030, 1, 10)]);
    EXPECT_FALSE(rules.ramadan[RowOfDay(2030, 6, 1)]);
    EXPECT_TRUE(rules.ramadan[RowOfDay(2030, 12, 30)]);
}

}  // namespace
}  // namespace horavex
