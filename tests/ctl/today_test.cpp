#include "base/date.h"
#include "ctl/ctl_json.h"
#include "engine/year_table.h"

namespace horavex {
namespace {

using testing::ElementsAre;

constexpr const char* kTodayAtNoon = "today --at 2026-11-21T12:00:00";

Json City(const std::string& name) {
    return JsonOf(Ctl(), std::string(kTodayAtNoon) + " --city", {name});
}

/// Hours of a day that a calendar for the place would tell too, to a few minutes.
void ExpectHours(const Json& day, const PrayerRow& hours) {
    constexpr double kTenMinutes = 1.0 / 6.0;
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        EXPECT_NEAR(day["hours"][prayer].get<double>(), hours[prayer], kTenMinutes)
            << day["city"] << ", prayer " << prayer;
    }
}

TEST(CtlToday, ObjectHasTheAgreedKeysAndTypes) {
    const Json day = JsonOf(Ctl(), kTodayAtNoon);
    EXPECT_THAT(KeysOf(day), testing::IsSupersetOf(
                                 {"city", "date", "hijri", "hours", "times", "next", "qibla"}));
    EXPECT_THAT(KeysOf(day["hijri"]), ElementsAre("day", "month", "monthName", "year"));
    EXPECT_THAT(KeysOf(day["times"]),
                ElementsAre("Fajr", "Shurooq", "Zuhr", "Asr", "Maghrib", "Isha"));
    EXPECT_THAT(KeysOf(day["next"]),
                ElementsAre("index", "sentence", "remainingSeconds", "remaining"));
    EXPECT_THAT(KeysOf(day["qibla"]), ElementsAre("degrees", "text"));
    EXPECT_EQ(day["hours"].size(), kPrayerCount);
    EXPECT_TRUE(day["next"]["remainingSeconds"].is_number_integer());
    EXPECT_TRUE(day["qibla"]["degrees"].is_number_float());
}

// Loading takes most of the time of a short call, and a status bar makes one every few seconds.
TEST(CtlToday, LoadsNothingOfTheToolkitThatDocumentsAreSetWith) {
    Ctl ctl;
    ctl.variables["LD_DEBUG"] = "libs";
    const std::string loaded = ctl.Run("today --city Cairo").err;
    EXPECT_THAT(loaded, testing::HasSubstr("libstdc++"));
    EXPECT_THAT(loaded, testing::Not(testing::HasSubstr("libQt")));
    EXPECT_THAT(loaded, testing::Not(testing::HasSubstr("libX11")));
}

TEST(CtlToday, FreshInstallStandsInMecca) {
    const Json day = JsonOf(Ctl(), kTodayAtNoon);
    EXPECT_EQ(day["city"], "Mecca, Mecca - Saudi Arabia");
    EXPECT_EQ(day["date"], "2026-11-21");
    EXPECT_TRUE(day["failure"].is_null());
    ExpectHours(day, {5.25, 6.6, 12.1, 15.25, 17.6, 18.9});
}

TEST(CtlToday, HijriDateIsTheArithmeticOne) {
    EXPECT_EQ(JsonOf(Ctl(), kTodayAtNoon)["hijri"],
              Json({{"day", 10}, {"month", 6}, {"monthName", "Jamad Thani"}, {"year", 1448}}));
}

TEST(CtlToday, TimesAreTheHoursWithoutTheirSeconds) {
    const Json day = JsonOf(Ctl(), kTodayAtNoon);
    const char* names[] = {"Fajr", "Shurooq", "Zuhr", "Asr", "Maghrib", "Isha"};
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        const ClockTime clock = ClockTimeOf(day["hours"][prayer].get<double>() / 24.0);
        char text[16];
        std::snprintf(text, sizeof text, "%02d:%02d %s", (clock.hour + 11) % 12 + 1, clock.minute,
                      clock.hour < 12 ? "AM" : "PM");
        EXPECT_EQ(day["times"][names[prayer]], text);
    }
}

struct KnownDay {
    const char* search;
    const char* city;
    PrayerRow hours;
};

class WorldCities : public testing::TestWithParam<KnownDay> {};

void PrintTo(const KnownDay& day, std::ostream* out) {
    *out << day.search;
}

TEST_P(WorldCities, AreToldInFullWithSensibleTimes) {
    const Json day = City(GetParam().search);
    EXPECT_EQ(day["city"], GetParam().city);
    ExpectHours(day, GetParam().hours);
}

INSTANTIATE_TEST_SUITE_P(
    CtlToday, WorldCities,
    testing::Values(
        KnownDay{"Cairo", "Cairo, Cairo - Egypt", {5.0, 6.4, 11.7, 14.6, 16.95, 18.35}},
        KnownDay{"Jakarta", "Jakarta, Jakarta - Indonesia", {4.2, 5.45, 11.65, 15.0, 17.85, 19.1}},
        KnownDay{
            "London", "London, England - United Kingdom", {5.55, 7.45, 11.75, 13.7, 16.05, 17.9}},
        KnownDay{"New York",
                 "New York City, New York - United States",
                 {5.53, 6.85, 11.7, 14.2, 16.55, 17.87}}));

TEST(CtlToday, MethodOptionsComeOnTopOfACity) {
    const Json plain = City("Cairo");
    const Json hanafi = JsonOf(Ctl(), std::string(kTodayAtNoon) + " --city Cairo --asr 2 --zone 3");
    EXPECT_NEAR(hanafi["hours"][2].get<double>() - plain["hours"][2].get<double>(), 1.0, 1e-12);
    EXPECT_GT(hanafi["hours"][3].get<double>() - plain["hours"][3].get<double>(), 1.5);
}

TEST(CtlToday, CityIndexNamesMecca) {
    const Json day = JsonOf(Ctl(), std::string(kTodayAtNoon) + " --city-index 5183");
    EXPECT_EQ(day["city"], "Mecca, Mecca - Saudi Arabia");
}

TEST(CtlToday, CoordinatesAreToldInWordsRoundedToTheHundredth) {
    const Json day =
        JsonOf(Ctl(), std::string(kTodayAtNoon) + " --latitude 30.0549 --longitude 31.2451");
    EXPECT_EQ(day["city"],
              "Latitude: 30 degrees, 3 minutes North, Longitude: 31 degrees, 15 minutes East");
    EXPECT_NEAR(day["qibla"]["degrees"].get<double>(), 136.2, 0.05);
}

TEST(CtlToday, PlaceWhoseYearCannotBeCalculatedSaysSo) {
    const Json day =
        JsonOf(Ctl(), std::string(kTodayAtNoon) + " --city Tromso --high-latitude none", {}, 1);
    EXPECT_EQ(day["failure"]["message"], "A");
    const ProgramRun run =
        Ctl().Run(std::string(kTodayAtNoon) + " --city Tromso --high-latitude none");
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_THAT(run.err, testing::HasSubstr("cannot be calculated with the present settings"));
}

TEST(CtlToday, WithoutAMomentTheClockOfThePlaceCounts) {
    // Samoa's side of the date line and the other one, 24 hours apart.
    const auto date = [](const char* longitude, const char* zone) {
        return JsonOf(Ctl(), std::string("today --latitude 0 --longitude ") + longitude +
                                 " --zone " + zone)["date"];
    };
    EXPECT_NE(date("-180", "-12"), date("180", "12"));
}

TEST(CtlToday, TextForPeopleMarksTheNextPrayer) {
    const ProgramRun run = Ctl().Run(std::string(kTodayAtNoon) + " --city Cairo");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out,
              "Cairo, Cairo - Egypt\n"
              "Saturday, November 21, 2026   12:00:00 PM\n"
              "10 Jamad Thani 1448\n"
              "\n"
              "    Fajr      04:54 AM\n"
              "    Shurooq   06:24 AM\n"
              "    Zuhr      11:40 AM\n"
              "  > Asr       02:36 PM\n"
              "    Maghrib   04:56 PM\n"
              "    Isha      06:17 PM\n"
              "\n"
              "Next: Asr at 2:36:25 PM\n"
              "Remaining: 2:36:25\n"
              "Qibla: 136 degrees, 15 minutes East of North\n"
              "Time zone: Africa/Cairo, UTC+02:00\n"
              "Method: Egyptian General Authority of Survey\n"
              "Nights without twilight: by the rule \"middle\"\n");
}

}  // namespace
}  // namespace horavex
