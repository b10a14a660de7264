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
    const ProgramRun run = Ctl().Run(line, {"--method", "egypt"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, Ctl().Run(line, {"--fajr", "19.5", "--isha", "17.5"}).out);
    EXPECT_NE(run.out, Ctl().Run(line).out);
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
