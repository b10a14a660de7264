#include "lang/pack_keys.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace horavex {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;
using testing::SizeIs;

const PackSection& Section(std::size_t index) {
    return PackVocabularies().at(index);
}

TEST(PackVocabularies, AreMessagesLabelsTheAthanWindowTheDesktopAndTimetables) {
    ASSERT_THAT(PackVocabularies(), SizeIs(5));
    EXPECT_EQ(Section(0).name, "msg");
    EXPECT_EQ(Section(1).name, "other");
    EXPECT_EQ(Section(2).name, "Azan");
    EXPECT_EQ(Section(3).name, "desktop");
    EXPECT_EQ(Section(4).name, "timetables");
}

TEST(PackVocabularies, MessagesAreNumberedTo24WithoutTheFreeEight) {
    EXPECT_THAT(Section(0).keys, SizeIs(23));
    EXPECT_EQ(Section(0).keys.front(), "1");
    EXPECT_EQ(Section(0).keys.back(), "24");
    EXPECT_THAT(Section(0).keys, Not(Contains("8")));
}

TEST(PackVocabularies, LabelsAreNumberedTo20AndFollowedByTheEraAndPrayersWithoutShurooq) {
    EXPECT_THAT(Section(1).keys, SizeIs(26));
    EXPECT_EQ(Section(1).keys[7], "8");
    const std::vector<std::string> names(Section(1).keys.begin() + 20, Section(1).keys.end());
    EXPECT_THAT(names, ElementsAre("AH", "Fajr", "Zuhr", "Asr", "Maghrib", "Isha"));
}

TEST(PackVocabularies, AthanWindowHasAPrayersNumberWithoutShurooq) {
    EXPECT_THAT(Section(2).keys, ElementsAre("0", "2", "3", "4", "5"));
}

}  // namespace
}  // namespace horavex
