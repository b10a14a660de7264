#include "sky/first_days.h"

#include "support/program_copy.h"
#include "support/test_platform.h"

namespace horavex {
namespace {

MonthEvenings EveningsOf(const std::string& yallop, const std::string& odeh) {
    MonthEvenings month{0.0, {}};
    for (std::size_t i = 0; i < yallop.size(); ++i) {
        CrescentEvening evening{};
        evening.moonUp = true;
        evening.yallop.letter = yallop[i];
        evening.odeh.letter = odeh[i];
        month.evenings.push_back({DateSerial(2026, 2, 16) + static_cast<double>(i), evening});
    }
    return month;
}

struct FirstDaysTest : testing::Test {
    TestPlatform platform;
};

TEST_F(FirstDaysTest, StandSideBySide) {
    CopyBuiltProgramFolder(platform.files);
    const FirstDays days = FirstDaysOf(EveningsOf("FECA", "DDCB"), {1447, 9, 1});
    EXPECT_EQ(days.yallop.nakedEye, DateSerial(2026, 2, 20));
    EXPECT_EQ(days.yallop.aided, DateSerial(2026, 2, 19));
    EXPECT_EQ(days.odeh.nakedEye, DateSerial(2026, 2, 20));
    EXPECT_EQ(days.odeh.aided, DateSerial(2026, 2, 19));
    EXPECT_EQ(days.ummAlQura, DateSerial(2026, 2, 18));
    EXPECT_EQ(days.arithmetic, DateSerial(2026, 2, 18));
}

TEST_F(FirstDaysTest, LackWhatIsNotSeenAndWhatIsNotPublished) {
    CopyBuiltProgramFolder(platform.files);
    const FirstDays days = FirstDaysOf(EveningsOf("FFFF", "DDDC"), {1510, 9, 1});
    EXPECT_EQ(days.yallop.aided, std::nullopt);
    EXPECT_EQ(days.odeh.nakedEye, std::nullopt);
    EXPECT_TRUE(days.odeh.aided);
    EXPECT_EQ(days.ummAlQura, std::nullopt);
}

}  // namespace
}  // namespace horavex
