#include "desktop/documents/column_widths.h"

#include <gmock/gmock.h>

#include <numeric>

namespace horavex {
namespace {

using testing::ElementsAre;

double Sum(const std::vector<double>& widths) {
    return std::accumulate(widths.begin(), widths.end(), 0.0);
}

TEST(ColumnWidths, AreByTheSharesWhereThereIsRoomForAll) {
    EXPECT_THAT(ColumnWidths({10, 10, 10}, {2, 1, 1}, 100), ElementsAre(50, 25, 25));
}

TEST(ColumnWidths, ColumnThatNeedsMoreHasItAndTheOthersShareTheRest) {
    EXPECT_THAT(ColumnWidths({10, 60, 10}, {2, 1, 1}, 120), ElementsAre(40, 60, 20));
}

TEST(ColumnWidths, OneThatNeedsMoreOnlyBesideAnotherHasItToo) {
    const auto widths = ColumnWidths({60, 24, 10}, {1, 1, 1}, 100);
    EXPECT_THAT(widths, ElementsAre(60, 24, 16));
    EXPECT_EQ(Sum(widths), 100);
}

TEST(ColumnWidths, WithoutRoomEachHasTheSamePartOfItsNeed) {
    EXPECT_THAT(ColumnWidths({100, 60, 40}, {1, 1, 1}, 100), ElementsAre(50, 30, 20));
}

}  // namespace
}  // namespace horavex
