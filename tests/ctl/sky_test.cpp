// Instants of PyEphem 4.1.4 and of the U.S. Naval Observatory (phases).

#include "ctl/ctl_json.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

constexpr const char* kPoint = " --latitude 21.42 --longitude 39.83";

TEST(CtlSky, ObjectHasTheAgreedKeys) {
    const Json sky = JsonOf(Ctl(), "sky --city Mecca --at 2026-02-18T18:00:00");
    EXPECT_THAT(KeysOf(sky), ElementsAre("city", "at", "sun", "moon", "twilight", "qibla"));
    EXPECT_THAT(KeysOf(sky["qibla"]), ElementsAre("bearing", "sun", "shadow", "sunOverMecca"));
    EXPECT_THAT(KeysOf(sky["sun"]),
                ElementsAre("rise", "transit", "set", "upAtMidnight", "altitude", "bearing"));
    EXPECT_THAT(KeysOf(sky["moon"]),
                ElementsAre("rise", "transit", "set", "upAtMidnight", "altitude", "bearing",
                            "distance", "litPart", "ahead"));
    EXPECT_THAT(KeysOf(sky["twilight"]), ElementsAre("civil", "nautical", "astronomical"));
}

TEST(CtlSky, TellsTheDayOnTheClockOfThePlace) {
    const Json sky = JsonOf(Ctl(), "sky --city Mecca --at 2026-02-18T18:00:00");
    EXPECT_EQ(sky["at"], "2026-02-18T18:00:00+03:00");
    EXPECT_THAT(sky["sun"]["rise"].get<std::string>(), StartsWith("2026-02-18T06:49:"));
    EXPECT_THAT(sky["sun"]["set"].get<std::string>(), StartsWith("2026-02-18T18:19:"));
    EXPECT_THAT(sky["moon"]["set"].get<std::string>(), StartsWith("2026-02-18T19:18:"));
    EXPECT_THAT(sky["twilight"]["astronomical"]["dawn"].get<std::string>(),
                StartsWith("2026-02-18T05:34:"));
    EXPECT_NEAR(sky["sun"]["altitude"], 3.68, 0.01);
    EXPECT_NEAR(sky["moon"]["litPart"], 0.0146, 0.0003);
}

TEST(CtlSky, TellsWhenTheSunShowsTheQibla) {
    const Json qibla = JsonOf(Ctl(), "sky --city London --at 2026-05-28T12:00:00")["qibla"];
    EXPECT_NEAR(qibla["bearing"], 119.0, 0.1);
    ASSERT_EQ(qibla["sun"].size(), 1U);
    EXPECT_THAT(qibla["sun"][0].get<std::string>(), StartsWith("2026-05-28T10:1"));
    EXPECT_THAT(qibla["sunOverMecca"][0].get<std::string>(), StartsWith("2026-05-28T10:1"));
    EXPECT_THAT(Ctl().Run("sky --city London --at 2026-05-28T12:00:00").out,
                HasSubstr("Sun over Mecca 2026-05-28 10:18 2026-07-15 10:27\n"));
}

TEST(CtlSky, TakesAZoneByHand) {
    const std::string day = std::string("sky --at 2026-02-18") + kPoint;
    const Json hours = JsonOf(Ctl(), day + " --zone -5");
    EXPECT_EQ(hours["at"], "2026-02-18T00:00:00-05:00");
    EXPECT_THAT(hours["sun"]["rise"].get<std::string>(), StartsWith("2026-02-18T22:4"));
    const Json named = JsonOf(Ctl(), day + " --time-zone Europe/Paris");
    EXPECT_THAT(named["sun"]["rise"].get<std::string>(), StartsWith("2026-02-18T04:49:"));
}

TEST(CtlSky, GivesADayOfSummerTimeItsOwnOffset) {
    const Json sky = JsonOf(Ctl(), "sky --city London --at 2026-06-21T12:00:00");
    EXPECT_THAT(sky["sun"]["rise"].get<std::string>(), StartsWith("2026-06-21T04:43:"));
    EXPECT_THAT(sky["sun"]["set"].get<std::string>(), testing::EndsWith("+01:00"));
    EXPECT_TRUE(sky["twilight"]["astronomical"]["dawn"].is_null());
}

TEST(CtlSky, HasNoRiseUnderTheMidnightSun) {
    const Json sun = JsonOf(Ctl(), "sky --city Tromso --at 2026-06-21T12:00:00")["sun"];
    EXPECT_TRUE(sun["rise"].is_null() && sun["set"].is_null());
    EXPECT_TRUE(sun["upAtMidnight"]);
    EXPECT_THAT(Ctl().Run("sky --city Tromso --at 2026-06-21T12:00:00").out,
                HasSubstr("Sun    rise --:--   transit 12:46   set --:--"));
}

TEST(CtlPhases, AreAllOfTheYearOnTheClockOfThePlace) {
    const Json answer = JsonOf(Ctl(), "phases --year 2026 --city Mecca");
    EXPECT_THAT(KeysOf(answer), ElementsAre("city", "year", "phases"));
    EXPECT_EQ(answer["phases"].size(), 50U);
    const Json& first = answer["phases"][0];
    EXPECT_EQ(first["phase"], "fullMoon");
    EXPECT_THAT(first["local"].get<std::string>(), StartsWith("2026-01-03T13:02:"));
}

TEST(CtlPhases, HaveEveryNewMoonOfAYearWhoseTableStepsOverOne) {
    int newMoons = 0;
    const Json answer = JsonOf(Ctl(), "phases --year 2024 --city London");
    for (const Json& row : answer["phases"]) {
        newMoons += row["phase"] == "newMoon" ? 1 : 0;
    }
    EXPECT_EQ(newMoons, 13);
}

TEST(CtlPhases, CountTheZoneOnce) {
    const std::string line = std::string("phases --year 2026") + kPoint;
    EXPECT_THAT(Ctl().Run(line + " --zone -8").out, HasSubstr("New Moon      2026-08-12 09:37\n"));
    EXPECT_THAT(Ctl().Run(line + " --zone 9").out, HasSubstr("New Moon      2026-08-13 02:37\n"));
}

TEST(CtlCrescent, ObjectHasTheAgreedKeys) {
    const Json month = JsonOf(Ctl(), "crescent --month 9 --year 1447 --city Mecca");
    EXPECT_THAT(KeysOf(month),
                ElementsAre("city", "month", "year", "newMoon", "evenings", "firstDays"));
    ASSERT_EQ(month["evenings"].size(), 5U);
    EXPECT_THAT(KeysOf(month["evenings"][0]), ElementsAre("date", "kind", "crescent"));
    EXPECT_THAT(KeysOf(month["evenings"][0]["crescent"]),
                ElementsAre("sunset", "moonset", "lagMinutes", "best", "ageHours", "moonAltitude",
                            "geocentric", "topocentric", "yallop", "odeh"));
}

TEST(CtlCrescent, SetsTheFirstDaysSideBySide) {
    const Json month = JsonOf(Ctl(), "crescent --month 9 --year 1447 --city Mecca");
    EXPECT_EQ(month["newMoon"].get<std::string>().substr(0, 16), "2026-02-17T15:01");
    EXPECT_EQ(month["evenings"][1]["crescent"]["yallop"]["class"], "F");
    EXPECT_EQ(month["evenings"][2]["crescent"]["yallop"]["class"], "A");
    EXPECT_EQ(month["evenings"][2]["crescent"]["odeh"]["zone"], "A");
    EXPECT_EQ(month["firstDays"]["yallop"]["nakedEye"], "2026-02-19");
    EXPECT_EQ(month["firstDays"]["odeh"]["opticalAid"], "2026-02-19");
    EXPECT_EQ(month["firstDays"]["ummAlQura"], "2026-02-18");
    EXPECT_EQ(month["firstDays"]["arithmetic"], "2026-02-18");
}

TEST(CtlCrescent, TextHasALineAnEveningAndAWay) {
    const std::string text = Ctl().Run("crescent --month 9 --year 1447 --city Mecca").out;
    EXPECT_THAT(text, HasSubstr("\n2026-02-18  18:20    19:19      59    27.7   13.3   13.3   0.42"
                                "    0.53 A     8.65 A\n"));
    EXPECT_THAT(text, HasSubstr("First day, Umm al-Qura:          2026-02-18\n"));
}

TEST(CtlCrescent, AsksNoCriterionWhereThereIsNothingToSee) {
    const std::string line = "crescent --month 5 --year 1449 --city London";
    const Json evenings = JsonOf(Ctl(), line)["evenings"];
    EXPECT_EQ(evenings[0]["kind"], "beforeNewMoon");
    EXPECT_EQ(evenings[2]["kind"], "moonSetsFirst");
    EXPECT_TRUE(evenings[2]["crescent"]["yallop"].is_null());
    EXPECT_TRUE(evenings[2]["crescent"]["odeh"].is_null());
    EXPECT_EQ(evenings[3]["kind"], "judged");
    EXPECT_FALSE(evenings[3]["crescent"]["odeh"].is_null());
    const std::string text = Ctl().Run(line).out;
    EXPECT_THAT(text, HasSubstr("  before the new moon\n2027-09-30  "));
    EXPECT_THAT(text, HasSubstr("  moon sets before the sun\n2027-10-02  "));
}

TEST(CtlCrescent, MarksATimeOfTheDayAfter) {
    EXPECT_THAT(Ctl().Run("crescent --month 1 --year 1447 --city Reykjavik").out,
                HasSubstr("\n2025-06-24  00:03+1  "));
}

TEST(CtlCrescent, SaysThatThereIsNoSunset) {
    const Json month = JsonOf(Ctl(), "crescent --month 1 --year 1448 --city Tromso");
    EXPECT_TRUE(month["evenings"][0]["crescent"].is_null());
    EXPECT_TRUE(month["firstDays"]["yallop"]["opticalAid"].is_null());
    EXPECT_THAT(Ctl().Run("crescent --month 1 --year 1448 --city Tromso").out,
                HasSubstr("2026-06-15  no sunset\n"));
    const Json winter = JsonOf(Ctl(), "crescent --month 7 --year 1448 --city Tromso");
    EXPECT_EQ(winter["evenings"][0]["kind"], "noSunset");
}

TEST(CtlCrescent, HasNoPublishedDayBeyondTheTable) {
    const Json month = JsonOf(Ctl(), "crescent --month 9 --year 1510 --city Mecca");
    EXPECT_TRUE(month["firstDays"]["ummAlQura"].is_null());
    EXPECT_FALSE(month["firstDays"]["arithmetic"].is_null());
}

}  // namespace
}  // namespace horavex
