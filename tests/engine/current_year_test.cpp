#include "engine/current_year.h"

#include "engine/sample_year.h"

namespace horavex {
namespace {

class LeapYear : public testing::TestWithParam<std::pair<int, int>> {};

TEST_P(LeapYear, FlagIsThePlainNumber) {
    CurrentYear = static_cast<std::int16_t>(GetParam().first);
    LeapYearFlag();
    EXPECT_EQ(LeapFlag, GetParam().second);
}

INSTANTIATE_TEST_SUITE_P(Years, LeapYear,
                         testing::Values(std::pair(1900, 0), std::pair(2000, 1), std::pair(2023, 0),
                                         std::pair(2024, 1), std::pair(2100, 0),
                                         std::pair(2400, 1)));

}  // namespace
}  // namespace horavex
