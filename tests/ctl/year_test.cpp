#include "ctl/ctl_json.h"
#include "engine/sample_year.h"

namespace horavex {
namespace {

using testing::ElementsAre;

constexpr const char* kCairo2001 =
    "year --latitude 30.05 --longitude 31.25 --zone 2 --fajr 19.5 --isha 17.5 --year 2001";
constexpr const char* kLondon2001 =
    "year --latitude 51.5 --longitude -0.12 --zone 0 --fajr 18 --isha 17 --asr 1 --year 2001";

std::string CairoCall(const std::string& rest) {
    return std::string(kCairo2001) + " " + rest;
}

void ExpectRow(const Json& row, const PrayerRow& hours) {
    constexpr double kFourPlaces = 0.00005;
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        EXPECT_NEAR(row[prayer].get<double>(), hours[prayer], kFourPlaces) << "prayer " << prayer;
    }
}

/// How many hours each row lies behind the same row of another table, which is one number for
/// all six prayers.
std::vector<double> Shifts(const Json& times, const Json& plain) {
    std::vector<double> shifts;
    for (std::size_t row = 0; row < plain.size(); ++row) {
        const double shift = times[row][0].get<double>() - plain[row][0].get<double>();
        shifts.push_back(shift);
        for (std::size_t prayer = 1; prayer < kPrayerCount; ++prayer) {
            EXPECT_NEAR(times[row][prayer].get<double>() - plain[row][prayer].get<double>(), shift,
                        1e-12)
                << "row " << row;
        }
    }
    return shifts;
}

TEST(CtlYear, ObjectHasTheAgreedKeysAndTypes) {
    const Json year = JsonOf(Ctl(), CairoCall("--asr 1"));
    EXPECT_THAT(KeysOf(year),
                ElementsAre("year", "latitude", "longitude", "calcFailed", "failure", "times",
                            "timeZone", "method", "highLatitudeRule", "moments"));
    EXPECT_EQ(year["year"], 2001);
    EXPECT_EQ(year["latitude"], 30.05);
    EXPECT_EQ(year["longitude"], 31.25);
    EXPECT_EQ(year["calcFailed"], 0);
    EXPECT_TRUE(year["failure"].is_null());
    ASSERT_EQ(year["times"].size(), 365U);
    for (const Json& row : year["times"]) {
        ASSERT_EQ(row.size(), kPrayerCount);
        ASSERT_TRUE(row[0].is_number_float());
    }
}

TEST(CtlYear, SpringDayInCairoComesOutToFourPlaces) {
    ExpectRow(JsonOf(Ctl(), CairoCall("--asr 1"))["times"][79],
              {4.5168, 5.9646, 12.0366, 15.4986, 18.1163, 19.4094});
}

TEST(CtlYear, HanafiRatioMovesAsrAlone) {
    ExpectRow(JsonOf(Ctl(), CairoCall("--asr 2"))["times"][79],
              {4.5168, 5.9646, 12.0366, 16.4024, 18.1163, 19.4094});
}

TEST(CtlYear, LeapYearHas366Rows) {
    const Json year = JsonOf(Ctl(),
                             "year --latitude 30.05 --longitude 31.25 --zone 2 --fajr 19.5"
                             " --isha 17.5 --asr 1 --year 2028");
    ASSERT_EQ(year["times"].size(), 366U);
    EXPECT_GT(year["times"][365][0].get<double>(), 4.0);
}

using CtlYearAndEngine = EngineTest;

TEST_F(CtlYearAndEngine, PrintedFiguresKeepEveryBitOfTheTable) {
    Cairo();
    Calculate(2001);
    const Json times = JsonOf(Ctl(), CairoCall("--asr 1"))["times"];
    for (std::size_t row = 0; row < 365; ++row) {
        ASSERT_EQ(times[row].get<PrayerRow>(), TimesOfRow(row)) << "row " << row;
    }
}

TEST(CtlYear, CoordinatesAreRoundedToTheHundredthThatTheFilesStore) {
    const Json year = JsonOf(Ctl(),
                             "year --latitude 30.0549 --longitude 31.2451 --zone 2 --fajr 19.5"
                             " --isha 17.5 --asr 1 --year 2001");
    EXPECT_EQ(year["latitude"], 30.05);
    EXPECT_EQ(year["longitude"], 31.25);
    EXPECT_EQ(year["times"], JsonOf(Ctl(), CairoCall("--asr 1"))["times"]);
}

TEST(CtlYear, ZoneTakesFractions) {
    const std::string rest =
        " --latitude 27.72 --longitude 85.32 --fajr 18 --isha 18 --asr 1 --year 2026";
    const Json whole = JsonOf(Ctl(), "year --zone 6" + rest)["times"][100];
    const Json nepal = JsonOf(Ctl(), "year --zone 5.75" + rest)["times"][100];
    EXPECT_NEAR(whole[2].get<double>() - nepal[2].get<double>(), 0.25, 1e-12);
}

TEST(CtlYear, NorthernDaylightSavingMovesItsDaysByAnHour) {
    const Json plain = JsonOf(Ctl(), CairoCall("--asr 1"))["times"];
    const Json times = JsonOf(Ctl(), CairoCall("--asr 1 --dst-start 91 --dst-end 300"))["times"];
    const auto shifts = Shifts(times, plain);
    for (std::size_t row = 0; row < 365; ++row) {
        ASSERT_NEAR(shifts[row], row >= 90 && row <= 299 ? 1.0 : 0.0, 1e-12) << "row " << row;
    }
}

TEST(CtlYear, SouthernDaylightSavingMovesBothEndsOfTheYear) {
    const Json plain = JsonOf(Ctl(), CairoCall("--asr 1"))["times"];
    const Json times = JsonOf(Ctl(), CairoCall("--asr 1 --dst-start 300 --dst-end 91"))["times"];
    const auto shifts = Shifts(times, plain);
    for (std::size_t row = 0; row < 365; ++row) {
        ASSERT_NEAR(shifts[row], row <= 90 || row >= 299 ? 1.0 : 0.0, 1e-12) << "row " << row;
    }
}

TEST(CtlYear, CalculationThatGivesUpNamesMessageAndRowAndStillPrints) {
    const Json year = JsonOf(Ctl(), kLondon2001, {}, 1);
    EXPECT_EQ(year["calcFailed"], -1);
    EXPECT_EQ(year["failure"], Json({{"message", "A"}, {"row", 142}}));
    EXPECT_EQ(year["times"].size(), 365U);
}

TEST(CtlYear, FailingRowIsFilledAndLaterRowsAreZeros) {
    const Json times = JsonOf(Ctl(), kLondon2001, {}, 1)["times"];
    const auto failing = times[142].get<PrayerRow>();
    EXPECT_EQ(failing[kFajr], 10000000.0);
    EXPECT_NEAR(failing[kZuhr], 12.0, 0.1);
    EXPECT_GT(failing[kIsha], failing[kMaghrib]);
    EXPECT_LT(times[141][0].get<double>(), 4.0);
    for (std::size_t row = 143; row < 365; ++row) {
        ASSERT_EQ(times[row].get<PrayerRow>(), PrayerRow{}) << "row " << row;
    }
}

TEST(CtlYear, CalculationThatGivesUpTellsThePersonWhy) {
    const ProgramRun run = Ctl().Run(kLondon2001);
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err,
              "The prayer times of this year cannot be calculated with the present settings.\n\n"
              "Please check the Time Zone\nor reduce the depression angle of Fajr\n");
}

TEST(CtlYear, EachMessageCarriesItsLetter) {
    const std::string equator = "year --latitude 0 --longitude 0 --zone 0 --asr 1 --year 2026";
    const auto failure = [&](const std::string& rest) {
        return JsonOf(Ctl(), equator + rest, {}, 1)["failure"]["message"];
    };
    EXPECT_EQ(failure(" --fajr 80 --isha 90"), "A");
    EXPECT_EQ(failure(" --fajr 3 --isha 18"), "B");
    EXPECT_EQ(JsonOf(Ctl(),
                     "year --latitude 46.5 --longitude -7.49 --zone 1 --fajr 14 --isha 14 --asr 1"
                     " --year 2026 --dst-start 100 --dst-end 250",
                     {}, 1)["failure"]["message"],
              "C");
}

TEST(CtlYear, TextForPeopleHasOneLineADay) {
    const std::string text = Ctl().Run(CairoCall("--asr 1")).out;
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 366);
    EXPECT_THAT(text, testing::HasSubstr(
                          "\n03-21  04:31 AM  05:57 AM  12:02 PM  03:29 PM  06:06 PM  07:24 PM\n"));
}

}  // namespace
}  // namespace horavex
