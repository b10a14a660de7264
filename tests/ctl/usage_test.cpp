#include <algorithm>

#include "ctl/ctl_json.h"
#include "support/build_folder.h"

namespace horavex {
namespace {

/// One line that begins with the program's name, and nothing printed.
void ExpectRefusal(const ProgramRun& run, int status) {
    EXPECT_EQ(run.status, status);
    EXPECT_EQ(run.out, "");
    EXPECT_THAT(run.err, testing::StartsWith("horavexctl: "));
    EXPECT_THAT(run.err, testing::EndsWith("\n"));
    EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), 1) << run.err;
    EXPECT_LT(run.err.size(), 200U) << run.err;
}

struct BadCall {
    const char* line;
    const char* reason;  // a piece of the line on standard error
};

void PrintTo(const BadCall& call, std::ostream* out) {
    *out << call.line;
}

class BadUsage : public testing::TestWithParam<BadCall> {};

TEST_P(BadUsage, EndsWithStatus2AndOneLineThatNamesTheMistake) {
    const ProgramRun run = Ctl().Run(GetParam().line);
    SCOPED_TRACE(GetParam().line);
    ExpectRefusal(run, 2);
    EXPECT_THAT(run.err, testing::HasSubstr(GetParam().reason));
}

constexpr BadCall kCommands[] = {
    {"", "subcommand"},        {"--json", "--json"},
    {"tomorrow", "tomorrow"},  {"dst --year 2026 zones", "zones"},
    {"cities Cairo", "Cairo"}, {"qibla --latitude 1 --longitude 1 --altitude 3", "altitude"},
};
INSTANTIATE_TEST_SUITE_P(Commands, BadUsage, testing::ValuesIn(kCommands));

constexpr BadCall kMissing[] = {
    {"year", "--year"},
    {"year --year 2026", "--latitude"},
    {"year --latitude 1 --longitude 1 --zone 0 --fajr 18 --isha 18 --asr 1", "--year"},
    {"year --latitude 1 --longitude 1 --fajr 18 --isha 18 --asr 1 --year 2026", "--zone"},
    {"year --latitude 1 --longitude 1 --zone 0 --fajr 18 --isha 18 --year 2026", "--asr"},
    {"qibla --latitude 1", "--longitude"},
    {"qibla --longitude 1", "--latitude"},
    {"today --latitude 1", "--longitude"},
    {"today --longitude 1", "--latitude"},
    {"today --dst-start 90", "--dst-end"},
    {"today --dst-end 90", "--dst-start"},
    {"dst", "--year"},
    {"export --format csv --output /x", "--year"},
    {"export --year 2026 --output /x", "--format"},
    {"export --year 2026 --format csv", "--output"},
    {"export --year 2026 --format doc --output /x", "doc"},
    {"export --year 2026 --format pdf --output /x --paper a5", "a5"},
    {"zones", "--longitude"},
    {"text --entry 1", "--language"},
    {"text --language 1", "--entry"},
    {"lang --section msg", "--key"},
    {"lang --key 1", "--section"},
    {"today --city", "--city"},
    {"moon --year 2026", "--zone"},
    {"moon --zone 2", "--year"},
    {"eclipses --year 2026", "--zone"},
    {"eclipses --local", "--year"},
    {"moonrise --latitude 1:0N --longitude 1:0E --zone 0", "--date"},
    {"moonrise --date 2026-1-1 --longitude 1:0E --zone 0", "--latitude"},
    {"moonrise --date 2026-1-1 --latitude 1:0N --zone 0", "--longitude"},
    {"moonrise --date 2026-1-1 --latitude 1:0N --longitude 1:0E", "--zone"},
    {"phases", "--year"},
    {"crescent --month 9", "--year"},
    {"crescent --year 1448", "--month"},
    {"hijri", "--date"},
    {"gregorian", "--date"},
    {"distance --to mecca --unit km", "--from"},
    {"distance --from 1:0:0N,1:0:0E --unit km", "--to"},
    {"distance --from 1:0:0N,1:0:0E --to mecca", "--unit"},
};
INSTANTIATE_TEST_SUITE_P(MissingOptions, BadUsage, testing::ValuesIn(kMissing));

constexpr BadCall kRanges[] = {
    {"qibla --latitude 90.01 --longitude 0", "--latitude"},
    {"qibla --latitude -91 --longitude 0", "--latitude"},
    {"qibla --latitude 0 --longitude 180.01", "--longitude"},
    {"zones --longitude -181", "--longitude"},
    {"today --zone 12.5", "--zone"},
    {"today --fajr 91", "--fajr"},
    {"today --isha -91", "--isha"},
    {"today --asr 3", "--asr"},
    {"today --dst-start 0 --dst-end 9", "--dst-start"},
    {"today --dst-start 9 --dst-end 367", "--dst-end"},
    {"dst --year 0", "--year"},
    {"phases --year 1899", "--year"},
    {"phases --year 2101", "--year"},
    {"sky --at 1899-12-31", "1900 to 2100"},
    {"sky --at noon", "--at"},
    {"eclipses --local --year 1899", "1900 to 2100"},
    {"eclipses --local --year 2101", "1900 to 2100"},
    {"eclipses --local --year 2026 --zone 13", "--zone"},
    {"eclipses --local --year 2026 --zone x", "--zone"},
    {"eclipses --local --year 2026 --zone ''", "--zone"},
    {"eclipses --local --year 2026 --city Nowhereville", "Nowhereville"},
    {"eclipses --local --year 2026 --zone 3 --time-zone Asia/Riyadh", "--time-zone"},
    {"eclipses --year 2026 --zone 3 --city Mecca", "--local"},
    {"eclipses --year 2026 --time-zone Asia/Riyadh", "--local"},
    {"crescent --month 13 --year 1448", "--month"},
    {"crescent --month 9 --year 1317", "--year"},
    {"crescent --month 9 --year 1524", "--year"},
    {"dst --year 10000", "--year"},
    {"text --entry 0 --language 1", "--entry"},
    {"text --entry 65536 --language 1", "--entry"},
    {"text --entry 1 --language 7", "--language"},
    {"text --entry 1 --language -1", "--language"},
    {"cities --limit 0", "--limit"},
    {"cities --limit -1", "--limit"},
    {"today --high-latitude fifth", "--high-latitude"},
    {"today --isha-interval 181", "--isha-interval"},
    {"today --maghrib-angle 10.5", "--maghrib-angle"},
    {"today --hijri lunar", "--hijri"},
    {"today --offset isha=61", "--offset"},
    {"today --offset isha", "--offset"},
    {"today --offset dawn=3", "--offset"},
    {"today --offset isha=3,", "--offset"},
    {"today --near 91,0", "--near"},
    {"today --near nan,0", "--near"},
    {"today --near 51.5", "--near"},
    {"today --city-index -32001", "city indexes run from -32000"},
    {"today --city-index 32767", "city indexes run from -32000"},
    {"today --city-index 40000", "city indexes run from -32000"},
};
INSTANTIATE_TEST_SUITE_P(OutOfRange, BadUsage, testing::ValuesIn(kRanges));

constexpr BadCall kNumbers[] = {
    {"qibla --latitude north --longitude 0", "--latitude"},
    {"qibla --latitude 1x --longitude 0", "--latitude"},
    {"qibla --latitude nan --longitude 0", "--latitude"},
    {"qibla --latitude 0 --longitude inf", "--longitude"},
    {"zones --longitude nan", "--longitude"},
    {"today --zone nan", "--zone"},
    {"today --fajr nan", "--fajr"},
    {"today --isha nan", "--isha"},
    {"today --asr one", "--asr"},
    {"dst --year 2026.5", "--year"},
    {"cities --index many", "--index"},
    {"cities --limit 99999999999999999999", "--limit"},
    {"text --entry five --language 1", "--entry"},
};
INSTANTIATE_TEST_SUITE_P(NoNumbers, BadUsage, testing::ValuesIn(kNumbers));

constexpr BadCall kMoments[] = {
    {"today --at now", "--at"},
    {"today --at 2026-02-29", "--at"},
    {"today --at 2026-13-01", "--at"},
    {"today --at 0000-01-01", "--at"},
    {"today --at 2026-11-21T24:00:00", "--at"},
    {"today --at 2026-11-21T12:60:00", "--at"},
    {"today --at 2026-11-21T12:00:60", "--at"},
    {"today --at 2026-11-21T12:00", "--at"},
    {"today --at 2026-11-21T", "--at"},
    {"today --at 2026-11-21T12:34:56Z", "--at"},
    {"today --at 2026-11-21x", "--at"},
    {"today --at 20261121", "--at"},
    {"today --at -2026-11-21", "--at"},
    {"today --at 2026--1-21", "--at"},
    {"today --at 2026-1-2", "--at"},
    {"today --at +026-11-21", "--at"},
};
INSTANTIATE_TEST_SUITE_P(Moments, BadUsage, testing::ValuesIn(kMoments));

constexpr BadCall kDays[] = {
    {"hijri --date today", "--date"},
    {"hijri --date 2026-11", "--date"},
    {"hijri --date 2026-11-31", "there is no day"},
    {"hijri --date 0-1-1", "there is no day"},
    {"hijri --date 2026-11-21T00:00:00", "--date"},
    {"gregorian --date 1448-1-30", "there is no day"},
    {"gregorian --date 1448-13-1", "there is no day"},
    {"gregorian --date 1448-1-0", "there is no day"},
    {"gregorian --date 0-1-1", "there is no day"},
    {"gregorian --date 10000-1-1", "there is no day"},
    {"moonrise --date 2026-2-29 --latitude 1:0N --longitude 1:0E --zone 0", "there is no day"},
};
INSTANTIATE_TEST_SUITE_P(Days, BadUsage, testing::ValuesIn(kDays));

constexpr BadCall kBadPlaces[] = {
    {"distance --from 30:3:0N --to mecca --unit km", "30:3:0N"},
    {"distance --from 30:3:0,31:15:0E --to mecca --unit km", "no coordinate"},
    {"distance --from 30:3:0E,31:15:0E --to mecca --unit km", "no coordinate"},
    {"distance --from 31:15:0E,30:3:0N --to mecca --unit km", "no coordinate"},
    {"distance --from 90:0:1N,31:15:0E --to mecca --unit km", "up to 90 degrees"},
    {"distance --from 30:60:0N,31:15:0E --to mecca --unit km", "no coordinate"},
    {"distance --from 30:3:60N,31:15:0E --to mecca --unit km", "no coordinate"},
    {"distance --from 30N,31:15:0E --to mecca --unit km", "no coordinate"},
    {"distance --from -30:3:0N,31:15:0E --to mecca --unit km", "no coordinate"},
    {"distance --from 30:x:0N,31:15:0E --to mecca --unit km", "no coordinate"},
    {"distance --from 30:3:0N,180:0:1E --to mecca --unit km", "up to 180 degrees"},
    {"distance --from 30:3:0N,31:15:0E --to medina --unit km", "medina"},
    {"distance --from 30:3:0N,31:15:0E --to mecca --unit m", "--unit"},
    {"moonrise --date 2026-1-1 --latitude 1:0E --longitude 1:0E --zone 0", "no coordinate"},
    {"moonrise --date 2026-1-1 --latitude 1:0:5N --longitude 1:0E --zone 0", "alone"},
    {"moonrise --date 2026-1-1 --latitude 91:0N --longitude 1:0E --zone 0", "up to 90"},
    {"moonrise --date 2026-1-1 --latitude 1:0N --longitude 1:0E --zone 13", "--zone"},
    {"moon --year 2026 --zone here", "--zone"},
    {"eclipses --year 2026 --zone -", "--zone"},
    {"moon --year 0 --zone 0", "--year"},
};
INSTANTIATE_TEST_SUITE_P(Places, BadUsage, testing::ValuesIn(kBadPlaces));

constexpr BadCall kTogether[] = {
    {"today --city Cairo --latitude 1 --longitude 1", "--city"},
    {"today --city-index 5183 --latitude 1 --longitude 1", "--city-index"},
    {"today --city Cairo --city-index 5183", "--city"},
    {"today --city Cairo --near 30,31", "--city"},
    {"today --near 30,31 --latitude 1 --longitude 1", "--near"},
    {"today --time-zone Europe/London --zone 0", "--time-zone"},
    {"today --time-zone Europe/London --dst-start 90 --dst-end 300", "--time-zone"},
    {"today --isha 17 --isha-interval 90", "--isha"},
    {"today --watch --json", "--watch"},
    {"today --watch --at 2026-11-21", "--watch"},
};
INSTANTIATE_TEST_SUITE_P(ExcludingOptions, BadUsage, testing::ValuesIn(kTogether));

constexpr BadCall kAbsent[] = {
    {"today --city Xyzzyx", "no city matches \"Xyzzyx\""},
    {"today --time-zone Mars/Base", "the zone database has no zone \"Mars/Base\""},
    {"today --city Cairo --time-zone ../x", "the zone database has no zone"},
    {"today --watch", "--watch wants a terminal"},
    {"validate nowhere/at/all", "there is no folder \"nowhere/at/all\""},
    {"validate /dev/null", "there is no folder \"/dev/null\""},
};
INSTANTIATE_TEST_SUITE_P(ThingsThatAreNotThere, BadUsage, testing::ValuesIn(kAbsent));

TEST(CtlUsage, EmptyWordsAreNoPlaces) {
    ExpectRefusal(Ctl().Run("today --city", {""}), 2);
    ExpectRefusal(Ctl().Run("today --city", {"  "}), 2);
    ExpectRefusal(Ctl().Run("today --at", {""}), 2);
}

TEST(CtlUsage, LineBreakInAWordDoesNotBreakTheMessage) {
    ExpectRefusal(Ctl().Run("today --city", {"Xyz\nzyx"}), 2);
    ExpectRefusal(Ctl().Run("today --at", {"2026-\n11-21"}), 2);
}

TEST(CtlUsage, HelpAndVersionAreNoMistakes) {
    for (const char* line : {"--help", "today --help", "cities -h"}) {
        const ProgramRun run = Ctl().Run(line);
        EXPECT_EQ(run.status, 0) << line;
        EXPECT_THAT(run.out, testing::HasSubstr("--")) << line;
        EXPECT_EQ(run.err, "") << line;
    }
    EXPECT_THAT(Ctl().Run("--version").out, testing::MatchesRegex("[0-9]+(\\.[0-9]+)+\n"));
}

TEST(CtlUsage, MissingDataFolderIsOneClearLine) {
    Ctl ctl;
    ctl.variables["HORAVEX_PROGRAM_FOLDER"] = ctl / "nowhere";
    for (const char* line : {"today", "today --city Cairo", "cities", "text --entry 1 --language 1",
                             "qibla --latitude 1 --longitude 1", "hijri --date 2026-11-21"}) {
        SCOPED_TRACE(line);
        const ProgramRun run = ctl.Run(line);
        ExpectRefusal(run, 1);
        EXPECT_THAT(run.err, testing::HasSubstr("Dat"));
    }
}

TEST(CtlUsage, CallsWithoutDataNeedNoFolder) {
    Ctl ctl;
    ctl.variables["HORAVEX_PROGRAM_FOLDER"] = ctl / "nowhere";
    EXPECT_EQ(ctl.Run("dst --year 2026").status, 0);
    EXPECT_EQ(ctl.Run("zones --longitude 30").status, 0);
    EXPECT_EQ(ctl.Run("eclipses --year 2026 --zone 2").status, 0);
    EXPECT_EQ(ctl.Run("distance --from 1:0:0N,1:0:0E --to mecca --unit km").status, 0);
}

TEST(CtlOutput, OutputThatCannotBeWrittenIsAFailure) {
    const Ctl ctl;
    for (const char* line : {"zones --longitude 30", "zones --longitude 30 --json", "--help"}) {
        const std::string command = BuildPath("bin/horavexctl") + " " + line + " > /dev/full";
        const ProgramRun run = RunCommand({"/bin/sh", "-c", command}, ctl.variables);
        EXPECT_EQ(run.status, 1) << line;
        EXPECT_EQ(run.err, "horavexctl: the standard output cannot be written\n");
    }
}

TEST(CtlOutput, ControlCharactersOfTextsReachNoTerminal) {
    const std::string text = "a\x1b[2Jb\r\x07\x7f\xC2\x9B\tc\n\xC2\xA0\xD9\x81";
    const std::vector<std::string> words = {"--section", "x", "--key", "y", "--default", text};
    EXPECT_EQ(Ctl().Run("lang", words).out, "a[2Jb\tc\n\xC2\xA0\xD9\x81\n");
    const std::string json = Ctl().Run("lang --json", words).out;
    EXPECT_EQ(std::count_if(json.begin(), json.end(), [](char c) { return c >= 0 && c < ' '; }), 1);
    EXPECT_THAT(json, testing::HasSubstr("\\u007f\\u009b"));
    EXPECT_EQ(Json::parse(json)["text"], text);
}

}  // namespace
}  // namespace horavex
