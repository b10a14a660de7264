#include "terminal/screen/cells.h"

#include <gtest/gtest.h>

#include <clocale>

namespace horavex {
namespace {

struct CellsTest : testing::Test {
    CellsTest() { std::setlocale(LC_CTYPE, "C.UTF-8"); }

    std::string Row(int row) const { return cells.Texts().at(static_cast<std::size_t>(row)); }

    Cells cells{2, 8};
};

TEST_F(CellsTest, WideCharacterTakesTwoPlaces) {
    cells.Put(0, 0, "日本x");
    EXPECT_EQ(Row(0), "日本x");
    EXPECT_EQ(cells.At(0, 4).text, "x");
    cells.Put(1, 6, "日本");
    EXPECT_EQ(Row(1), "      …") << "no half of one at the edge";
}

TEST_F(CellsTest, TextFromTheRightEndsAtTheEdge) {
    cells.PutRight(0, 1, "abc", {}, 5);
    EXPECT_EQ(Row(0), "   abc");
    cells.PutAsIs(1, 1, "abc", {}, 5, true);
    EXPECT_EQ(Row(1), "   abc");
}

TEST_F(CellsTest, TextThatIsTooLongIsCutAtTheEdgeOfTheScreen) {
    cells.Put(0, 4, "abcdef");
    EXPECT_EQ(Row(0), "    abc…");
    cells.Put(1, 9, "abc");
    EXPECT_EQ(Row(1), "");
}

}  // namespace
}  // namespace horavex
