#include <gmock/gmock.h>

#include <algorithm>

#include "base/text.h"
#include "ctl/years_run.h"

namespace horavex {
namespace {

using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

/// The calls of kPlaces, one a line.
std::vector<std::vector<std::string>> CallsOfPlaces() {
    return {{"--city", "Cairo", "--year", "2026"},
            {"--city-index", "5183", "--year", "2026"},
            {"--latitude=30.05", "--longitude=31.25", "--zone=2", "--fajr=19.5", "--isha=17.5",
             "--asr=1", "--year=2001"},
            {"--city", "Oslo", "--year", "2028"},
            {"--latitude=60", "--longitude=10", "--zone=1", "--fajr=18", "--isha=18", "--asr=1",
             "--year=2026"},
            {"--latitude=30.05", "--longitude=31.25", "--zone=2", "--fajr=19.5", "--isha=17.5",
             "--asr=1", "--year=2001"},
            {"--near=51.5,-0.12", "--method=isna", "--year=2026"},
            {"--latitude=30.05", "--longitude=-90.5", "--zone=-6", "--fajr=15", "--isha=15",
             "--asr=2", "--dst-start=80", "--dst-end=300", "--year=2026"},
            {"--latitude=30.05", "--longitude=31.25", "--zone=2", "--fajr=19.5", "--isha=17.5",
             "--asr=1", "--year=2026"},
            {"--city=Sydney", "--year=2026"},
            {"--city=Apia, Samoa", "--year=2026"},
            {"--city=Longyearbyen", "--high-latitude=nearest", "--year=2026"},
            {"--city=Murmansk", "--high-latitude=angle", "--year=2026"},
            {"--city=Mecca", "--method=umm-al-qura", "--year=2026"},
            {"--city=Riyadh", "--isha-interval=80", "--year=2026"},
            {"--city=Tehran", "--method=tehran", "--maghrib-angle=4", "--year=2026"},
            {"--city=London", "--fajr=12", "--isha=12", "--asr=2", "--high-latitude=none",
             "--year=2026"},
            {"--city=Jakarta", "--zone=9", "--offset=fajr=2,isha=-3", "--year=2026"},
            {"--city=Paris", "--time-zone=Asia/Kolkata", "--hijri=umm-al-qura", "--year=2026"},
            {"--city=Casablanca", "--year=1900"},
            {"--city=Kathmandu", "--year=9999"}};
}

std::string AllYears(const Ctl& ctl) {
    std::string years;
    for (const auto& call : CallsOfPlaces()) {
        years += YearOf(ctl, call);
    }
    return years;
}

TEST(CtlYears, EachLineIsWhatTheCommandYearPrints) {
    YearsRun years;
    years.Write(kPlaces);
    const ProgramRun run = years.Run("--jobs 1");
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.err, StartsWith("horavexctl: line 6: The prayer times"));
    EXPECT_EQ(std::ranges::count(run.err, '\n'), 1) << run.err;
    const auto expected = Split(AllYears(years.ctl), '\n');
    const auto printed = Split(run.out, '\n');
    ASSERT_EQ(printed.size(), expected.size());
    ASSERT_EQ(printed.size(), 22U);
    for (std::size_t line = 0; line < expected.size(); ++line) {
        EXPECT_TRUE(printed[line] == expected[line]) << "line " << line;
    }
}

TEST(CtlYears, OrderIsThatOfTheLinesHoweverManyProcessesCalculate) {
    YearsRun years;
    years.Write(kPlaces);
    for (const char* format : {"jsonl", "csv"}) {
        const std::string one = years.Printed(std::string("--jobs 1 --format ") + format, 1);
        EXPECT_EQ(years.Printed(std::string("--jobs 8 --format ") + format, 1), one);
        EXPECT_EQ(years.Printed(std::string("--format ") + format, 1), one);
    }
}

TEST(CtlYears, JsonLinesGiveTheSameAsCsv) {
    YearsRun years;
    years.Write(
        "city,latitude,longitude,zone,fajr,isha,asr,year\nCairo,,,,,,,2026\n,-30.5,31,2,"
        "18,17,2,2027\n");
    const std::string csv = years.Printed();
    years.Write(
        "{\"city\":\"Cairo\",\"year\":2026}\r\n\n {\"latitude\":-30.5,\"longitude\":31,"
        "\"zone\":2,\"fajr\":18,\"isha\":\"17\",\"asr\":2,\"city\":null,\"year\":2027}");
    EXPECT_EQ(years.Printed(), csv);
}

TEST(CtlYears, ReadsTheStandardInput) {
    const YearsRun years;
    const ProgramRun run =
        years.Shell("printf 'city\\nCairo\\n' | \"$ctl\" years --from - --year 2026");
    EXPECT_EQ(run.out, YearOf(years.ctl, {"--city=Cairo", "--year=2026"})) << run.err;
}

TEST(CtlYears, DataOfTheProgramThatChangeInARunCountForTheNextOne) {
    const YearsRun years;
    const std::string data = years.ctl / "data/horavex";
    std::filesystem::create_directories(data);
    std::filesystem::copy(BuildPath("share/horavex/Dat"), data + "/Dat");
    // More lines than are taken ahead.
    const std::string meddled =
        "printf 'city\\n'; yes Cairo | head -n 12; timeout 60 bash -c 'until grep -qs ^2, "
        "years.csv; do :; done'; "
        "for file in \"$HOME\"/data/horavex/Dat/C*; do : > \"$file\"; done; echo Cairo";
    const ProgramRun run = years.Shell(
        "export XDG_DATA_HOME=\"$HOME\"/data; { " + meddled +
        "; } | timeout 60 \"$ctl\" years --from - --year 2026 --jobs 1 --format csv --output "
        "years.csv; \"$ctl\" year --city Cairo --year 2026");
    EXPECT_EQ(std::ranges::count(years.Content("years.csv"), '\n'), 1 + 13 * 365) << run.err;
    EXPECT_NE(run.status, 0);
}

TEST(CtlYears, YearOfTheCommandIsThatOfLinesWithoutOne) {
    YearsRun years;
    years.Write("city,year\nCairo,2027\nCairo,\n");
    EXPECT_EQ(years.Printed("--year 2026"), YearOf(years.ctl, {"--city=Cairo", "--year=2027"}) +
                                                YearOf(years.ctl, {"--city=Cairo", "--year=2026"}));
}

TEST(CtlYears, LinesThatAreNoneAreToldAndPassedOver) {
    YearsRun years;
    years.Write(
        "city,latitude,year\nXyzzyx,,2026\nCairo,,2026\n,91,2026\nCairo,,20x6\nCairo\n"
        "\n\"Cairo,,2026\nCairo,,2026\n\"Cairo\"x,,2026\nSpringfield,,2026\n,,2026\n");
    const ProgramRun run = years.Run("--jobs 3");
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, YearOf(years.ctl, {"--city=Cairo", "--year=2026"}) +
                           YearOf(years.ctl, {"--city=Cairo", "--year=2026"}));
    const auto told = Split(run.err, '\n');
    ASSERT_EQ(told.size(), 9U) << run.err;
    EXPECT_EQ(told[0], "horavexctl: line 2: no city matches \"Xyzzyx\"");
    EXPECT_THAT(told[1], StartsWith("horavexctl: line 4: --latitude"));
    EXPECT_THAT(told[2], StartsWith("horavexctl: line 5: --year"));
    EXPECT_EQ(told[3], "horavexctl: line 6: has 1 fields where the head has 3");
    EXPECT_EQ(told[4], "horavexctl: line 8: its quotes are wrong");
    EXPECT_EQ(told[5], "horavexctl: line 10: its quotes are wrong");
    EXPECT_THAT(told[6], AllOf(StartsWith("horavexctl: line 11:   --city \"Springfield"),
                               HasSubstr("may be")));
    EXPECT_EQ(told[7], "horavexctl: line 12: --latitude is required where no city is named");
    EXPECT_THAT(told[8], "");
}

TEST(CtlYears, LinesOfJsonThatAreNoneAreToldToo) {
    YearsRun years;
    years.Write(
        "{\"city\":\"Cairo\"}\nCairo\n{\"city\":[1]}\n{\"town\":\"Cairo\"}\n{\"help\":1}\n{"
        "\"city\":\"" +
        std::string(5000, 'x') + "\"}\n{\"city\":\"Cairo\"}\n");
    const ProgramRun run = years.Run("--year 2026");
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(std::ranges::count(run.out, '\n'), 2);
    EXPECT_EQ(run.err,
              "horavexctl: line 2: is no JSON object\n"
              "horavexctl: line 3: \"city\" is neither a text nor a number\n"
              "horavexctl: line 4: \"town\" is neither an option of the command year nor \"name\"\n"
              "horavexctl: line 5: \"help\" is neither an option of the command year nor \"name\"\n"
              "horavexctl: line 6: is longer than 4000 bytes\n");
}

TEST(CtlYears, QuotedFieldsHoldCommasQuotesAndEndsOfLines) {
    YearsRun years;
    years.Write(
        "\xEF\xBB\xBF\"name\",\"city\"\r\n\"a \"\"b\"\",\r\nc\",\"Apia, Samoa\"\r\n"
        "\"\",\"Cairo\"\r\n");
    EXPECT_EQ(years.Printed("--year 2026"),
              YearOf(years.ctl, {"--city=Apia, Samoa", "--year=2026"}) +
                  YearOf(years.ctl, {"--city=Cairo", "--year=2026"}));
}

TEST(CtlYears, CsvHasTheRowsOfTheExportBehindTheNumberOfTheLine) {
    YearsRun years;
    years.Write("city,year\nCairo,2026\n\nOslo,2028\n");
    const std::string cairo =
        years.ctl.Run("export --format csv --city Cairo --year 2026 --output -").out;
    const std::string oslo =
        years.ctl.Run("export --format csv --city Oslo --year 2028 --output -").out;
    const auto rows = Split(years.Printed("--format csv"), '\n');
    ASSERT_EQ(rows.size(), 1U + 365U + 366U + 1U);
    EXPECT_EQ(rows[0], "Line," + Split(oslo, '\n')[0]);
    const auto withoutMarks = Split(cairo, '\n')[1];
    EXPECT_THAT(rows[1], StartsWith("2," + withoutMarks.substr(0, withoutMarks.size() - 1)));
    for (std::size_t day = 1; day <= 366; ++day) {
        EXPECT_EQ(rows[365 + day], "4," + Split(oslo, '\n')[day]);
    }
}

TEST(CtlYears, FolderTakesAFileForEachLine) {
    YearsRun years;
    years.Write(
        "name,city,latitude,longitude,zone,fajr,isha,asr\n,Cairo,,,,,,\n"
        "../a b/\x07\xC3\xB6,Oslo,,,,,,\n,,30,31,2,18,18,1\nGives up,,60,10,1,18,18,1\n");
    for (const std::string format : {"text", "csv", "json", "ics", "html"}) {
        const std::string folder = years.ctl / format;
        std::filesystem::create_directory(folder);
        const ProgramRun run = years.Run("--year 2026 --format " + format + " --output " + folder);
        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(run.out, folder + ": 4 lines, 1 gave up\n");
        EXPECT_THAT(run.err, StartsWith("horavexctl: line 5: "));
        const std::string suffix = format == "text" ? ".txt" : "." + format;
        const std::string exported = years.ctl / "exported";
        for (const auto& [name, call] :
             {std::pair("000002-Cairo", "--city Cairo"),
              std::pair("000003-.._a_b_\xC3\xB6", "--city Oslo"),
              std::pair("000004-30_31",
                        "--latitude 30 --longitude 31 --zone 2 --fajr 18 "
                        "--isha 18 --asr 1")}) {
            years.ctl.Run(std::string("export ") + call + " --year 2026 --format " + format +
                          " --output " + exported);
            const std::string file = ContentOf(folder + "/" + name + suffix);
            EXPECT_FALSE(file.empty()) << name << suffix;
            EXPECT_TRUE(format == "ics" || file == ContentOf(exported)) << name << suffix;
        }
        EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder), {}), 3) << format;
    }
}

// Without the desktop there are no fonts, and each line is told so.
TEST(CtlYears, FolderTakesDocumentsWhereThereAreFonts) {
    YearsRun years;
    years.Write("city\nCairo\nOslo\nParis\n");
    const std::string folder = years.ctl / "documents";
    std::filesystem::create_directory(folder);
    const ProgramRun run =
        years.Run("--year 2026 --format pdf --paper letter --jobs 2 --output " + folder);
    if (run.status == 1) {
        EXPECT_THAT(run.err, HasSubstr("line 4: what sets PDF in type comes with the desktop"));
        return;
    }
    EXPECT_EQ(run.err, "");
    for (const char* name : {"000002-Cairo", "000003-Oslo", "000004-Paris"}) {
        EXPECT_THAT(ContentOf(folder + "/" + name + ".pdf"), StartsWith("%PDF-")) << name;
    }
}

TEST(CtlYears, CitiesAreLinesForIt) {
    const YearsRun years;
    const ProgramRun run = years.Shell(
        "\"$ctl\" cities --search Ober --lines --limit 3 | tee lines | \"$ctl\" years --from - "
        "--year "
        "2026 --format csv --jobs 2");
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_THAT(years.Content("lines"), StartsWith("city-index,name\n"));
    EXPECT_EQ(std::ranges::count(run.out, '\n'), 1 + 3 * 365);
}

TEST(CtlYears, NameOfACityMayHoldACommaInItsLine) {
    const YearsRun years;
    const ProgramRun run =
        years.Shell("\"$ctl\" cities --lines | grep -c '^-*[0-9]*,\"[^\"]*,[^\"]*\"$'");
    EXPECT_NE(run.out, "0\n") << "no name has one any more: drop this test";
}

TEST(CtlYears, ProgressIsToldOnlyWhereItIsWanted) {
    YearsRun years;
    years.Write("city\nCairo\nXyzzyx\n");
    EXPECT_EQ(years.Run("--year 2026").err, "horavexctl: line 3: no city matches \"Xyzzyx\"\n");
    EXPECT_THAT(years.Run("--year 2026 --progress").err, EndsWith("2 lines, 1 passed over\n"));
}

TEST(CtlYears, SummaryIsJsonWhereThatIsWanted) {
    YearsRun years;
    years.Write("city\nCairo\nXyzzyx\n");
    const std::string file = years.ctl / "out";
    const ProgramRun run = years.Run("--year 2026 --json --output " + file);
    EXPECT_EQ(run.out, "{\"output\":\"" + file + "\",\"lines\":2,\"gaveUp\":0,\"passedOver\":1}\n");
    EXPECT_EQ(years.Content("out"), YearOf(years.ctl, {"--city=Cairo", "--year=2026"}));
}

TEST(CtlYears, RefusesWhatCannotGoTogether) {
    YearsRun years;
    years.Write("city\nCairo\n");
    const auto expectRefused = [&](const std::string& rest, const std::string& reason) {
        const ProgramRun run = years.Run(rest.empty() ? "--year 2026" : "--year 2026 " + rest);
        EXPECT_EQ(run.status, 2) << rest;
        EXPECT_THAT(run.err, HasSubstr(reason)) << rest;
        EXPECT_EQ(run.out, "") << rest;
    };
    expectRefused("--json", "--json wants an --output");
    expectRefused("--resume", "--resume wants an --output");
    expectRefused("--format ics --output " + (years.ctl / "x.ics"), "a file for each line");
    expectRefused("--output " + (years.ctl / "."), "names a folder");
    expectRefused("--jobs 0", "--jobs");
    years.Write("city,town\nCairo,\n");
    expectRefused("", "\"town\" is neither an option");
    years.Write("city,\"town\nCairo,\n");
    expectRefused("", "the quotes of the head");
}

TEST(CtlYears, TellsWhatCannotBeReadOrWritten) {
    YearsRun years;
    const std::string missing = years.ctl / "places";
    EXPECT_EQ(years.Run().err, "horavexctl: " + missing + ": No such file or directory\n");
    years.Write("city\nCairo\n");
    const auto expectFault = [&](const std::string& output, const std::string& reason) {
        const ProgramRun run = years.Run("--year 2026 --output " + output);
        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(run.err, "horavexctl: " + output + ": " + reason + "\n");
    };
    expectFault(years.ctl / "no/out", "No such file or directory");
    expectFault("/dev/full", "is no regular file");
    const ProgramRun full = years.Shell("\"$ctl\" years --from places --year 2026 > /dev/full");
    EXPECT_EQ(full.status, 1);
    EXPECT_EQ(full.err, "horavexctl: the standard output cannot be written\n");
}

TEST(CtlYears, FullDiskEndsTheRunWhichThenGoesOn) {
    YearsRun years;
    years.Write("city\nCairo\nOslo\nParis\n");
    const std::string limited =
        "ulimit -f 400 && trap '' XFSZ && \"$ctl\" years --from places --year 2026 --output out";
    const ProgramRun full = years.Shell(limited);
    EXPECT_EQ(full.status, 1);
    EXPECT_THAT(full.err, AllOf(StartsWith("horavexctl: out: "), EndsWith("\n")));
    EXPECT_EQ(years.Run("--year 2026 --resume --output " + (years.ctl / "out")).status, 0);
    EXPECT_EQ(years.Content("out"), years.Printed("--year 2026"));
}

TEST(CtlYears, NoLineIsNoMistake) {
    YearsRun years;
    years.Write("");
    EXPECT_EQ(years.Printed(), "");
    years.Write("city,year\n");
    EXPECT_EQ(years.Printed(), "");
    EXPECT_EQ(Split(years.Printed("--format csv"), '\n').size(), 2U);
}

}  // namespace
}  // namespace horavex
