#include "timetables/json_timetable.h"

#include "base/text.h"
#include "engine/ruled_year.h"
#include "engine/solar_event.h"
#include "store/around_options.h"
#include "timetables/sample_timetable.h"

namespace horavex {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

// The text is read back by a parser of JSON in the tests of horavexctl.
using JsonTimetableTest = TimetableTest;

TEST_F(JsonTimetableTest, BeginsWithPlaceAndMethodAndHasALineADay) {
    const std::string text = JsonTimetable(TakeTimetable());
    EXPECT_THAT(
        text,
        StartsWith(
            "{\"year\":2026,\n\"place\":\"Cairo - Egypt\",\n\"latitude\":30.05,\n"
            "\"longitude\":31.25,\n\"timeZone\":2,\n\"fajrAngle\":19.5,\n\"ishaAngle\":17.5,\n"
            "\"asrRatio\":1,\n\"qibla\":136.14,\n\"method\":null,\n"
            "\"highLatitudeRule\":\"none\",\n\"days\":[\n"
            "{\"date\":\"2026-01-01\",\"hijri\":{\"year\":1447,\"month\":7,\"day\":12},"
            "\"daylight\":false,\"times\":{\"Fajr\":\"05:00\",\"Shurooq\":\"06:30\","
            "\"Zuhr\":\"12:00\",\"Asr\":\"15:15\",\"Maghrib\":\"18:00\",\"Isha\":\"19:30\"},"
            "\"hours\":[5,6.5,12,15.25,18,19.5],\"moments\":["
            "{\"prayer\":\"Fajr\",\"local\":\"2026-01-01T05:00:00+02:00\",\"by\":\"sun\"},"));
    EXPECT_THAT(text, EndsWith("{\"prayer\":\"Isha\",\"local\":\"2026-12-31T19:30:00+02:00\","
                               "\"by\":\"sun\"}]}\n]}\n"));
}

TEST_F(JsonTimetableTest, TimeThatDoesNotExistIsNull) {
    Times[kIsha][0] = NoEvent;
    const std::string text = JsonTimetable(TakeTimetable());
    EXPECT_THAT(text, HasSubstr("\"Isha\":null},\"hours\":[5,6.5,12,15.25,18,null]"));
    EXPECT_THAT(text, HasSubstr("{\"prayer\":\"Isha\",\"local\":null,\"by\":\"sun\"}"));
}

TEST_F(JsonTimetableTest, ZoneOfItsOwnStandsByNameWithEachMomentsOffset) {
    LordHowe();
    const std::string text = JsonTimetable(TakeTimetable());
    EXPECT_THAT(text, HasSubstr("\"timeZone\":{\"name\":\"Australia/Lord_Howe\",\"offset\":11,"
                                "\"daylight\":true},"));
    EXPECT_THAT(text, HasSubstr("\"2026-07-01T12:00:00+10:30\""));
    EXPECT_THAT(text, HasSubstr("\"2026-01-01T12:30:00+11:00\""));
}

TEST_F(JsonTimetableTest, MethodRuleAndWhatMadeAMomentAreTold) {
    Oslo();
    RuledYear.rules.method = "Umm al-Qura";
    const std::string text = JsonTimetable(TakeTimetable());
    EXPECT_THAT(text, HasSubstr("\"method\":\"Umm al-Qura\",\n\"highLatitudeRule\":\"middle\""));
    EXPECT_THAT(text, HasSubstr("\"local\":\"2026-06-22T01:18:"));
    EXPECT_THAT(text, HasSubstr("\"by\":\"rule\""));
}

TEST_F(JsonTimetableTest, TimesAroundTheDayAreToldWhereAnOptionAsksForThem) {
    EXPECT_THAT(JsonTimetable(TakeTimetable()), testing::Not(HasSubstr("around")));
    RuledYear.inputs = PresentInputs();
    SaveOption(option::kAroundTheDay, 1);
    SaveOption(option::kImsakMinutes, 15);
    const std::string text = JsonTimetable(TakeTimetable());
    EXPECT_THAT(
        text,
        HasSubstr("\"around\":[{\"time\":\"Imsak\",\"local\":\"2026-01-01T04:45:00+02:00\",\"by\":"
                  "\"interval\"},"
                  "{\"time\":\"Duha\",\"local\":\"2026-01-01T06:45:00+02:00\",\"by\":\"interval\"},"
                  "{\"time\":\"MiddleOfNight\",\"local\":\"2026-01-01T23:30:00+02:00\",\"by\":"
                  "\"interval\"},"
                  "{\"time\":\"LastThird\",\"local\":\"2026-01-02T01:20:00+02:00\",\"by\":"
                  "\"interval\"}]}"));
}

TEST_F(JsonTimetableTest, TextsAreEscaped) {
    ActiveCityText = "a \"b\" \\ c\n\x01 é";
    EXPECT_THAT(JsonTimetable(TakeTimetable()),
                HasSubstr("\"place\":\"a \\\"b\\\" \\\\ c\\u000a\\u0001 é\","));
}

TEST_F(JsonTimetableTest, IntervalOfIshaIsToldWhereItCounts) {
    EXPECT_THAT(JsonTimetable(TakeTimetable()), testing::Not(testing::HasSubstr("ishaInterval")));
    RuledYear.rules.moments.ishaInterval = 90;
    EXPECT_THAT(JsonTimetable(TakeTimetable()), testing::HasSubstr("\"ishaInterval\":90,\n"));
}

}  // namespace
}  // namespace horavex
