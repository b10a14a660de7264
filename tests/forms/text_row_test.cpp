#include "forms/drawing.h"

namespace horavex {
namespace {

using testing::ElementsAre;

double LettersOf(const std::string& text) {
    return static_cast<double>(text.size());
}

std::vector<std::string> Words(const TextRowStep& row) {
    std::vector<std::string> words;
    for (const TextStep& text : TextsOf(row, LettersOf)) {
        words.push_back(text.text);
    }
    return words;
}

TEST(TextRow, OneTextThatIsTooWideMakesAllBrief) {
    TextRowStep row{{{{0.0, 0.0}, "May", "M"}, {{9.0, 0.0}, "October", "O"}}, 7.0};
    EXPECT_THAT(Words(row), ElementsAre("May", "October"));
    row.room = 6.0;
    EXPECT_THAT(Words(row), ElementsAre("M", "O"));
}

TEST(TextRow, TextsKeepTheirPlaceAndColour) {
    const TextRowStep row{{{{3.0, 4.0}, "May", "M"}}, 7.0, kWhite};
    const TextStep text = TextsOf(row, LettersOf).at(0);
    EXPECT_EQ(text.at, (Point{3.0, 4.0}));
    EXPECT_EQ(text.colour, kWhite);
}

}  // namespace
}  // namespace horavex
