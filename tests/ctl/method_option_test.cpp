#include <algorithm>

#include "ctl/ctl_json.h"

namespace horavex {
namespace {

/// The six hours of a day in Cairo.
Json HoursBy(const std::vector<std::string>& options) {
    return JsonOf(Ctl(), "today --at 2026-03-01T12:00:00 --city Cairo", options)["hours"];
}

TEST(CtlMethodOption, SetsBothTwilights) {
    EXPECT_EQ(HoursBy({"--method", "egypt"}), HoursBy({"--fajr", "19.5", "--isha", "17.5"}));
    EXPECT_EQ(HoursBy({"--method", "Fiqh Council"}), HoursBy({"--fajr", "13", "--isha", "13"}));
}

TEST(CtlMethodOption, SetsTheShadowFactorThatTheAuthorityTells) {
    EXPECT_EQ(HoursBy({"--method", "karachi"}),
              HoursBy({"--fajr", "18", "--isha", "18", "--asr", "2"}));
    EXPECT_EQ(HoursBy({"--method", "egypt"})[3], HoursBy({})[3]);
}

TEST(CtlMethodOption, GivesWayToWhatIsGivenByHand) {
    EXPECT_EQ(HoursBy({"--method", "karachi", "--fajr", "15", "--asr", "1"}),
              HoursBy({"--fajr", "15", "--isha", "18", "--asr", "1"}));
}

TEST(CtlMethodOption, CountsForAnExportToo) {
    const std::string line = "export --city Cairo --year 2026 --format csv --output -";
    const ProgramRun run = Ctl().Run(line, {"--method", "isna"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, Ctl().Run(line, {"--fajr", "15", "--isha", "15"}).out);
    EXPECT_NE(run.out, Ctl().Run(line).out);
}

/// The hours from Maghrib to Isha in Mecca by a method.
double EveningInMecca(const std::string& day, const std::vector<std::string>& options) {
    const Json hours = JsonOf(Ctl(), "today --city-index 5183 --at " + day, options)["hours"];
    return hours[5].get<double>() - hours[4].get<double>();
}

TEST(CtlMethodOption, IntervalSetsIshaAndIsLongerInRamadan) {
    EXPECT_NEAR(EveningInMecca("2026-11-22", {"--method", "umm-al-qura"}), 1.5, 1e-9);
    EXPECT_NEAR(EveningInMecca("2026-03-01", {"--method", "umm-al-qura"}), 2.0, 1e-9);
    EXPECT_LT(EveningInMecca("2026-03-01", {"--method", "umm-al-qura", "--isha", "18"}), 1.4)
        << "an angle by hand stands for the interval";
}

TEST(CtlMethodOption, MarginsMoveTheTimes) {
    const Json bare = HoursBy({"--fajr", "18", "--isha", "17"});
    const Json hours = HoursBy({"--method", "turkey"});
    const double minutes[] = {0, -7, 5, 4, 7, 0};
    for (std::size_t prayer = 0; prayer < 6; ++prayer) {
        EXPECT_NEAR((hours[prayer].get<double>() - bare[prayer].get<double>()) * 60.0,
                    minutes[prayer], 1e-9);
    }
}

TEST(CtlMethodOption, AngleOfMaghribIsLaterThanSunset) {
    const double sunset = HoursBy({})[4].get<double>();
    const double maghrib = HoursBy({"--method", "tehran"})[4].get<double>();
    EXPECT_GT(maghrib - sunset, 0.2);
    EXPECT_LT(maghrib - sunset, 0.4);
}

TEST(CtlMethodOption, IntervalCountsForAnExportToo) {
    const std::string line =
        "export --city-index 5183 --year 2026 --format json --output - --method";
    const Json days = Json::parse(Ctl().Run(line, {"umm-al-qura"}).out)["days"];
    const Json& hours = days[0]["hours"];
    EXPECT_NEAR(hours[5].get<double>() - hours[4].get<double>(), 1.5, 1e-9);
}

/// What stands on standard error.
std::string Refusal(const std::string& method) {
    const ProgramRun run = Ctl().Run("today --city Cairo --method", {method});
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), 1) << run.err;
    return run.err;
}

TEST(CtlMethodOption, NameOfSeveralIsRefusedWithTheCandidates) {
    EXPECT_EQ(Refusal("university"),
              "horavexctl: \"university\" fits several methods: karachi, tehran, umm-al-qura\n");
}

TEST(CtlMethodOption, NameOfNoneIsRefused) {
    EXPECT_EQ(Refusal("Atlantis"),
              "horavexctl: no method matches \"Atlantis\"; the command methods lists them\n");
}

}  // namespace
}  // namespace horavex
