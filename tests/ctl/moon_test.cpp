#include "ctl/ctl_json.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

constexpr const char* kInCairo = " --latitude 30:3N --longitude 31:15E --zone 2";

TEST(CtlMoon, ObjectHasTheAgreedKeysAndRows) {
    const Json moon = JsonOf(Ctl(), "moon --year 2001 --zone 0");
    EXPECT_THAT(KeysOf(moon),
                ElementsAre("newMoon", "firstQuarter", "fullMoon", "lastQuarter", "labels"));
    for (const char* phase : {"newMoon", "firstQuarter", "fullMoon", "lastQuarter", "labels"}) {
        EXPECT_EQ(moon[phase].size(), 13U) << phase;
    }
}

TEST(CtlMoon, RowsAreTheTablesTexts) {
    const Json moon = JsonOf(Ctl(), "moon --year 2001 --zone 0");
    EXPECT_EQ(moon["newMoon"][0], "25 December 2000, 17hrs 22min");
    EXPECT_EQ(moon["firstQuarter"][0], "2 January 2001,  22hrs 32min");
    EXPECT_EQ(moon["fullMoon"][0], "9 January 2001,  20hrs 25min");
    EXPECT_EQ(moon["lastQuarter"][0], "16 January 2001,  12hrs 35min");
    EXPECT_EQ(moon["labels"][0], "Shawwal 1421");
}

TEST(CtlMoon, ZoneIsATextThatIsFloored) {
    EXPECT_EQ(JsonOf(Ctl(), "moon --year 2001 --zone +5.75"),
              JsonOf(Ctl(), "moon --year 2001 --zone 5"));
    EXPECT_EQ(JsonOf(Ctl(), "moon --year 2001 --zone 2")["newMoon"][1],
              "24 January 2001, 17hrs 7min");
}

TEST(CtlMoon, LabelsOfLaterYearsComeFromTheConverter) {
    EXPECT_EQ(JsonOf(Ctl(), "moon --year 2026 --zone 0")["labels"][0], " Rajab 1447");
    EXPECT_EQ(JsonOf(Ctl(), "moon --year 2020 --zone 0")["labels"].size(), 12U);
}

TEST(CtlMoon, TextForPeopleHasEachTableUnderItsTitle) {
    const std::string text = Ctl().Run("moon --year 2001 --zone 0").out;
    EXPECT_THAT(text, HasSubstr("New Moon\n  25 December 2000, 17hrs 22min\n"));
    EXPECT_THAT(text, HasSubstr("Arabic Month\n  Shawwal 1421\n"));
}

TEST(CtlEclipses, ObjectHasListsAndTables) {
    const Json eclipses = JsonOf(Ctl(), "eclipses --year 2001 --zone 0");
    EXPECT_THAT(KeysOf(eclipses), ElementsAre("solar", "lunar"));
    for (const char* body : {"solar", "lunar"}) {
        EXPECT_THAT(KeysOf(eclipses[body]), ElementsAre("text", "rows")) << body;
        EXPECT_EQ(eclipses[body]["rows"].size(), 14U) << body;
    }
    EXPECT_EQ(eclipses["lunar"]["text"],
              "9 January 2001  ,  20hrs 22min\r\n5 July 2001  ,  14hrs 57min\r\n"
              "30 November 2001  ,  21hrs 9min\r\n30 December 2001  ,  10hrs 30min\r\n");
    EXPECT_EQ(eclipses["lunar"]["rows"][0], "9 January 2001  ,  20hrs 22min");
    EXPECT_EQ(eclipses["solar"]["rows"][0], "25 December 2000  , 17hrs 37min");
    EXPECT_EQ(eclipses["solar"]["rows"][1], "24 January 2001  ,  12hrs 47min");
    EXPECT_EQ(eclipses["solar"]["rows"][13], "");
}

TEST(CtlEclipses, TextForPeopleHasBothLists) {
    EXPECT_THAT(Ctl().Run("eclipses --year 2024 --zone 0").out,
                testing::StartsWith("Solar\n8 April 2024  ,  18hrs 19min\n"));
}

TEST(CtlMoonrise, GivesBothTexts) {
    const Json moon = JsonOf(Ctl(), std::string("moonrise --date 2026-11-21") + kInCairo);
    EXPECT_EQ(moon, Json({{"rise", "Moon Rise at:14:30:10.98"}, {"set", "Moon Set at:2:52:0"}}));
}

TEST(CtlMoonrise, DaylightSavingAddsAnHour) {
    const Json moon = JsonOf(Ctl(), std::string("moonrise --date 2026-11-21 --dst") + kInCairo);
    EXPECT_EQ(moon["rise"], "Moon Rise at:15:30:10.98");
    EXPECT_EQ(moon["set"], "Moon Set at:3:52:0");
}

TEST(CtlMoonrise, SouthAndWestAreNegative) {
    EXPECT_NE(JsonOf(Ctl(),
                     "moonrise --date 2026-11-21 --latitude 33:52S --longitude 151:12E "
                     "--zone 10"),
              JsonOf(Ctl(),
                     "moonrise --date 2026-11-21 --latitude 33:52N --longitude 151:12W "
                     "--zone 10"));
}

TEST(CtlMoonrise, NearAPoleBothTextsAreTheErrors) {
    const Json moon = JsonOf(
        Ctl(), "moonrise --date 2026-11-21 --latitude 90:0N --longitude 0:0E --zone 0", {}, 1);
    EXPECT_EQ(moon, Json({{"rise", "Input Error"}, {"set", "Input Error"}}));
}

}  // namespace
}  // namespace horavex
