#include "engine/moment_text.h"

#include "engine/sample_year.h"
#include "lang/language_pack.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr Moment kBySun = {19.5};
constexpr Moment kByInterval = {24.25, MomentBy::kInterval, 1};
constexpr Moment kByRule = {24.25, MomentBy::kRule, 1};
constexpr Moment kBeforeMidnight = {-0.5, MomentBy::kSun, -1};

struct MomentTextTest : EngineTest {
    MomentTextTest() { currentLanguage = "Nowhere"; }
};

TEST_F(MomentTextTest, OfTheSunOnItsOwnDayIsTheClockAlone) {
    EXPECT_EQ(MomentText(kBySun), "07:30 PM");
    EXPECT_EQ(MomentCell(kBySun), "07:30 PM");
}

TEST_F(MomentTextTest, TellsTheDayOfItsClock) {
    EXPECT_EQ(MomentText(kByInterval), "12:15 AM, next day");
    EXPECT_EQ(MomentText(kBeforeMidnight), "11:30 PM, previous day");
    EXPECT_EQ(MomentCell(kByInterval), "12:15 AM+1");
    EXPECT_EQ(MomentCell(kBeforeMidnight), "11:30 PM-1");
}

TEST_F(MomentTextTest, MarksWhatARuleMade) {
    EXPECT_EQ(MomentText(kByRule), "12:15 AM, next day \u2020");
    EXPECT_EQ(MomentCell(kByRule), "12:15 AM+1\u2020");
}

TEST_F(MomentTextTest, SpeaksTheLanguageOfThePack) {
    currentLanguage = "German";
    platform.files.WriteWhole("/program/lang/German.ini",
                              BytesOf("[moments]\nNextDay={time} morgen\n"));
    EXPECT_EQ(MomentText(kByRule), "12:15 AM morgen \u2020");
}

TEST_F(MomentTextTest, NoteNamesTheRuleWhereAMomentHasTheMark) {
    const Moment marked[] = {kBySun, kByRule};
    EXPECT_THAT(RuleNote(marked, HighLatitudeRule::kSeventh),
                HasSubstr("\"seventh of the night\""));
    EXPECT_THAT(RuleNote(marked, HighLatitudeRule::kNearest), HasSubstr("\"nearest day\""));
    EXPECT_EQ(RuleNote({&kByInterval, 1}, HighLatitudeRule::kSeventh), "");
}

TEST_F(MomentTextTest, NotesOfColumnsTellEachMarkOnce) {
    const Moment moments[] = {kBeforeMidnight, kByRule, kByRule, kBySun};
    EXPECT_THAT(ColumnNotes(moments, HighLatitudeRule::kMiddle),
                ElementsAre("+1: on the next day", "-1: on the previous day",
                            HasSubstr("\"middle of the night\"")));
    EXPECT_THAT(ColumnNotes({&kBySun, 1}, HighLatitudeRule::kMiddle), IsEmpty());
}

}  // namespace
}  // namespace horavex
