#include <algorithm>
#include <filesystem>

#include "base/text.h"
#include "ctl/ctl_json.h"
#include "support/build_folder.h"

namespace horavex {
namespace {

using testing::HasSubstr;

constexpr const char* kMidsummer = "today --at 2026-06-21T12:00:00";

Json Midsummer(const std::string& place, const std::vector<std::string>& more = {}) {
    return JsonOf(Ctl(), std::string(kMidsummer) + place, more);
}

TEST(CtlCity, AloneTakesItsZoneTheMethodOfItsCountryAndARule) {
    const Json day = Midsummer(" --city London");
    EXPECT_EQ(day["timeZone"],
              Json::parse(R"({"name":"Europe/London","offset":1.0,"daylight":true})"));
    EXPECT_EQ(day["method"], "Muslim World League");
    EXPECT_EQ(day["highLatitudeRule"], "seventh");
    EXPECT_NEAR(day["hours"][2].get<double>(), 13.04, 0.02);
    EXPECT_EQ(day["moments"][5], Json::parse(R"({"prayer":"Isha",
              "local":"2026-06-21T22:24:40+01:00","by":"rule"})"));
}

TEST(CtlCity, KeepsToTheSunWhereTheNightHasTwilight) {
    const Json day = Midsummer(" --city Cairo");
    EXPECT_EQ(day["timeZone"]["name"], "Africa/Cairo");
    EXPECT_EQ(day["timeZone"]["offset"], 3.0);
    EXPECT_EQ(day["method"], "Egyptian General Authority of Survey");
    EXPECT_EQ(day["highLatitudeRule"], "middle");
    for (const Json& moment : day["moments"]) {
        EXPECT_EQ(moment["by"], "sun");
    }
}

TEST(CtlCity, ClockIsItsOwnNow) {
    // A day apart, whatever the hour: 13 or 14 hours ahead of Greenwich and 11 behind.
    const Json east = JsonOf(Ctl(), "today --city Apia,Samoa");
    const Json west = JsonOf(Ctl(), "today --city", {"Pago Pago"});
    EXPECT_EQ(east["timeZone"]["offset"].get<double>() - west["timeZone"]["offset"].get<double>(),
              24.0);
    EXPECT_NE(east["date"], west["date"]);
}

TEST(CtlCity, BestKnownIsMeantWhereItAloneIsWrittenAsTyped) {
    EXPECT_THAT(JsonOf(Ctl(), "today --city Apia")["city"].get<std::string>(),
                testing::EndsWith("Samoa"));
    EXPECT_EQ(Ctl().Run("today --city Merida").status, 2) << "in Mexico, Venezuela, Spain";
}

TEST(CtlCity, CountryMayBeSaidByItsCodeOrAUsualAbbreviation) {
    const auto cityOf = [](const std::string& text) {
        return JsonOf(Ctl(), "today --city", {text})["city"].get<std::string>();
    };
    EXPECT_THAT(cityOf("Birmingham, UK"), testing::EndsWith("United Kingdom"));
    EXPECT_THAT(cityOf("Houston, us"), testing::EndsWith("United States"));
    EXPECT_THAT(cityOf("Birmingham, Alabama, USA"), testing::EndsWith("United States"));
    EXPECT_THAT(cityOf("Paris, FR"), testing::EndsWith("France"));
}

TEST(CtlCity, CodesAreThoseOfTheGazetteer) {
    const std::string codes = ContentOf(SourcePath("ctl/country_codes.cpp"));
    const auto rows = Split(ContentOf(SourcePath("data/gazetteer/countries.tsv")), '\n');
    ASSERT_GT(rows.size(), 200U);
    for (std::size_t row = 1; row + 1 < rows.size(); ++row) {
        const auto fields = Split(rows[row], '\t');
        EXPECT_NE(codes.find("{\"" + fields[0] + "\", \"" + fields[1] + "\"}"), std::string::npos)
            << rows[row];
    }
}

TEST(CtlCity, WhatIsGivenByHandReplacesJustThat) {
    const Json day = Midsummer(" --city London --zone 0");
    EXPECT_EQ(day["timeZone"], Json::parse(R"({"name":null,"offset":0.0,"daylight":false})"));
    EXPECT_EQ(day["method"], "Muslim World League");
    EXPECT_NEAR(day["hours"][2].get<double>(), 12.04, 0.02);
    const Json isna = Midsummer(" --city London --method isna --time-zone Asia/Riyadh");
    EXPECT_EQ(isna["method"], "Islamic Society of North America");
    EXPECT_EQ(isna["timeZone"]["name"], "Asia/Riyadh");
    EXPECT_EQ(isna["highLatitudeRule"], "seventh");
}

TEST(CtlCity, DaysOfDaylightSavingByHandStandForTheZone) {
    const Json day = Midsummer(" --city London --dst-start 200 --dst-end 300");
    EXPECT_EQ(day["timeZone"], Json::parse(R"({"name":null,"offset":0.0,"daylight":false})"));
}

TEST(CtlCity, CoordinatesTakeNothingOfACity) {
    const Json day = Midsummer(" --latitude 30.05 --longitude 31.25");
    EXPECT_EQ(day["timeZone"], Json::parse(R"({"name":null,"offset":2.0,"daylight":false})"));
    EXPECT_TRUE(day["method"].is_null());
    EXPECT_EQ(day["highLatitudeRule"], "none");
}

TEST(CtlCity, NearestToAPointIsTaken) {
    const Json day = Midsummer(" --near 21.43,39.83");
    EXPECT_EQ(day["city"], "Mecca, Mecca - Saudi Arabia");
    EXPECT_EQ(day["moments"][5]["by"], "interval");
    // Across the date line, and south of the equator.
    EXPECT_THAT(Midsummer(" --near -17.8,-179.9")["city"].get<std::string>(), HasSubstr("Fiji"));
}

std::string CityOf(const std::string& text) {
    return Midsummer(" --city", {text})["city"];
}

TEST(CtlCity, BestKnownOfANameIsTakenWhereItStandsFarOut) {
    EXPECT_EQ(CityOf("Paris"), "Paris, Île-de-France - France");
    EXPECT_EQ(CityOf("London"), "London, England - United Kingdom");
}

TEST(CtlCity, ProvinceOrCountryBehindACommaTellsItFromOthers) {
    EXPECT_EQ(CityOf("Springfield, Illinois"), "Springfield, Illinois - United States");
    EXPECT_EQ(CityOf("paris,texas"), "Paris, Texas - United States");
    EXPECT_EQ(CityOf("Hyderabad, Pakistan"), "Hyderabad, Sindh - Pakistan");
    EXPECT_EQ(CityOf("Cairo, Cairo - Egypt"), "Cairo, Cairo - Egypt");
}

TEST(CtlCity, NameOfSeveralIsRefusedWithWhatToSay) {
    const ProgramRun run = Ctl().Run("today --city Springfield");
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.out, "");
    EXPECT_THAT(run.err,
                HasSubstr("  --city \"Springfield, Illinois, United States\" or --city-index "));
    EXPECT_THAT(run.err, HasSubstr("\nhoravexctl: \"Springfield\" may be 9 cities"));
    EXPECT_THAT(run.err, testing::Not(HasSubstr("Powder Springs")));
}

TEST(CtlCity, IsTheSameWithoutTheIndexOfNames) {
    Ctl ctl;
    const std::string folder = ctl.UseFolderCopy();
    const std::string call = "today --at 2026-06-21T12:00:00 --format {place} --city";
    const std::vector<std::string> names = {"Cairo",
                                            "Springfield",
                                            "Springfield, Illinois",
                                            "Springfield, USA",
                                            "Paris, TX",
                                            "New York",
                                            "Kairo",
                                            "Saint John's",
                                            "apia",
                                            "Santa Rosa",
                                            "Victoria",
                                            "Cordoba, AR",
                                            "Xyzzyx",
                                            "Mec",
                                            "مكة",
                                            "San - Jose"};
    std::vector<ProgramRun> with;
    for (const std::string& name : names) {
        with.push_back(ctl.Run(call, {name}));
    }
    std::filesystem::remove(folder + "/Dat/NI.DAT");
    for (std::size_t i = 0; i < names.size(); ++i) {
        const ProgramRun without = ctl.Run(call, {names[i]});
        EXPECT_EQ(with[i].status, without.status) << names[i];
        EXPECT_EQ(with[i].out, without.out) << names[i];
        EXPECT_EQ(with[i].err, without.err) << names[i];
    }
}

TEST(CtlRules, ChangeWhatTheyName) {
    const Json plain = Midsummer(" --city-index 5183");
    const auto hours = [](const Json& day, std::size_t prayer) {
        return day["hours"][prayer].get<double>();
    };
    const Json day = Midsummer(" --city-index 5183 --offset fajr=2,Isha=-3 --isha-interval 60");
    EXPECT_NEAR(hours(day, 0) - hours(plain, 0), 2.0 / 60.0, 1e-9);
    EXPECT_NEAR(hours(day, 5) - hours(day, 4), 57.0 / 60.0, 1e-9);
    EXPECT_EQ(day["hours"][4], plain["hours"][4]);
    EXPECT_GT(hours(Midsummer(" --city-index 5183 --maghrib-angle 4"), 4), hours(plain, 4) + 0.2);
}

TEST(CtlRules, CountForAcceptedSettingsAndCoordinatesToo) {
    EXPECT_EQ(Midsummer(" --time-zone Africa/Cairo")["timeZone"]["name"], "Africa/Cairo");
    const Json day = Midsummer(" --latitude 59.9 --longitude 10.7 --fajr 18 --isha 17 --zone 2",
                               {"--high-latitude", "nearest"});
    EXPECT_EQ(day["highLatitudeRule"], "nearest");
    EXPECT_EQ(day["moments"][0]["by"], "rule");
}

// The value's file has one section; a line of another opens the next.
TEST(CtlRules, StoredZoneThatTheDatabaseLacksCountsAsNone) {
    const auto zone = [](const std::string& name) {
        const Ctl ctl;
        ctl.StoreRegistryValue("Language",
                               "English\n[Software\\\\Horavex\\\\Options]\n"
                               "Automatic Zone=1\nZone Name=" +
                                   name);
        return JsonOf(ctl, kMidsummer)["timeZone"]["name"];
    };
    EXPECT_EQ(zone("Africa/Cairo"), "Africa/Cairo");
    EXPECT_TRUE(zone("Mars/Base").is_null());
}

TEST(CtlRules, CalendarOfTheHijriDateIsChosen) {
    const auto hijri = [](const std::string& calendar) {
        return JsonOf(Ctl(), "today --at 2026-06-16 --hijri " + calendar)["hijri"]["day"];
    };
    EXPECT_EQ(hijri("umm-al-qura"), 1);
    EXPECT_NE(hijri("umm-al-qura"), hijri("arithmetic"));
}

TEST(CtlMoments, BehindMidnightHaveTheNextDaysDate) {
    const std::string call = std::string(kMidsummer) +
                             " --latitude 59.9 --longitude 10.7 --zone 3 --fajr 18 --isha 17 "
                             "--high-latitude seventh";
    EXPECT_THAT(JsonOf(Ctl(), call)["moments"][5]["local"].get<std::string>(),
                testing::StartsWith("2026-06-22T00:"));
    const std::string text = Ctl().Run(call).out;
    EXPECT_THAT(text, testing::ContainsRegex("Isha      12:[0-9]+ AM, next day \u2020\n"));
    EXPECT_THAT(text, HasSubstr("\nTimes marked \u2020 follow the high latitude rule \"seventh "
                                "of the night\""));
    EXPECT_THAT(text, testing::Not(HasSubstr("Time zone:")));
}

TEST(CtlMoments, OffsetIsThatOfTheirOwnTime) {
    // Clocks of London go back on 25 October 2026.
    const auto fajr = [](const std::string& day) {
        return JsonOf(Ctl(), "today --near 51.51,-0.13 --at " + day)["moments"][0]["local"]
            .get<std::string>();
    };
    EXPECT_THAT(fajr("2026-10-24"), testing::EndsWith("+01:00"));
    EXPECT_THAT(fajr("2026-10-25"), testing::EndsWith("+00:00"));
}

TEST(CtlMoments, OfAYearStandBesideItsHours) {
    const Json year = JsonOf(Ctl(), "year --near 59.91,10.75 --year 2026");
    EXPECT_EQ(year["timeZone"],
              Json::parse(R"({"name":"Europe/Oslo","offset":1.0,"daylight":false})"));
    ASSERT_EQ(year["moments"].size(), 365U);
    EXPECT_EQ(year["moments"][171][5]["by"], "rule");
    const Json day = JsonOf(Ctl(), std::string(kMidsummer) + " --near 59.91,10.75");
    EXPECT_EQ(year["times"][171], day["hours"]);
    EXPECT_EQ(year["moments"][171], day["moments"]);
}

TEST(CtlMoments, TableOfAYearMarksThem) {
    const std::string text = Ctl().Run("year --near 59.91,10.75 --year 2026").out;
    EXPECT_THAT(text, HasSubstr("\n06-21  03:09 AM\u2020    03:53 AM"));
    EXPECT_THAT(text, HasSubstr("\nTimes marked \u2020"));
    EXPECT_THAT(text, HasSubstr("\nTime zone: Europe/Oslo, UTC+01:00\nMethod: Muslim World"));
}

TEST(CtlMoments, TableOfAYearMarksTheNextDay) {
    const std::string text = Ctl()
                                 .Run(
                                     "year --latitude 59.9 --longitude 10.7 --zone 3 --fajr 18 "
                                     "--isha 17 --asr 1 --high-latitude seventh --year 2026")
                                 .out;
    EXPECT_THAT(text, HasSubstr("  11:43 PM     12:28 AM+1\u2020\n"));
    EXPECT_THAT(text, HasSubstr("\n+1: on the next day\n"));
}

TEST(CtlMoments, AreNoneOfAYearThatGivesUp) {
    const Json year =
        JsonOf(Ctl(), "year --near 59.91,10.75 --year 2026 --high-latitude none", {}, 1);
    EXPECT_TRUE(year["moments"].is_null());
    EXPECT_EQ(year["times"].size(), 365U);
}

TEST(CtlCity, NamesThePlaceOfQiblaAndMoonriseToo) {
    EXPECT_THAT(Ctl().Run("qibla --near 51.51,-0.13").out, HasSubstr("118 degrees, 59 minutes"));
    EXPECT_EQ(
        Ctl().Run("moonrise --near 51.51,-0.13 --date 2026-06-21").out,
        Ctl().Run("moonrise --latitude 51:31N --longitude 0:8W --zone 1 --date 2026-06-21").out);
}

}  // namespace
}  // namespace horavex
