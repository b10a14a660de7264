#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "base/bytes.h"
#include "store/indexed_file.h"
#include "store/settings_record.h"
#include "support/build_folder.h"
#include "support/run_program.h"
#include "support/temporary_folder.h"

namespace horavex {
namespace {

namespace fs = std::filesystem;

constexpr const char* kCityColumns =
    "country\tname\tprovince\tlatitude\tlongitude\tpopulation\tzone\tnames\n";
constexpr const char* kCountries = "code\tname\nDZ\tAlgeria\nEG\tEgypt\nSA\tSaudi Arabia\n";

struct Compilers : testing::Test {
    void Write(const std::string& name, const std::string& content) {
        std::ofstream(folder / name, std::ios::binary) << content;
    }

    Bytes Output(const std::string& name) {
        std::ifstream in(folder / ("out/" + name), std::ios::binary);
        return BytesOf(std::string(std::istreambuf_iterator<char>(in), {}));
    }

    ProgramRun Locations(const std::string& cities, const std::string& countries = kCountries) {
        Write("cities.tsv", cities);
        Write("countries.tsv", countries);
        return RunProgram("build_locations", {folder.Path(), folder / "out"}, {});
    }

    ProgramRun Compile(const std::string& tool, const std::string& source) {
        Write("source", source);
        return RunProgram(tool, {folder / "source", folder / "out"}, {});
    }

    /// Status 1 with one line that holds the reason, and no file written.
    void ExpectFailure(const ProgramRun& run, const std::string& reason) {
        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(run.out, "");
        EXPECT_THAT(run.err, testing::HasSubstr(reason));
        EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), 1) << run.err;
        EXPECT_FALSE(fs::exists(folder / "out"));
    }

    TemporaryFolder folder;
};

using BuildLocations = Compilers;
using BuildTexts = Compilers;
using BuildAngles = Compilers;
using BuildHijri = Compilers;
using BuildSettings = Compilers;

std::string Cities(const std::string& rows) {
    return kCityColumns + rows;
}

/// Rows of a country without a place to tell apart.
std::string CitiesOf(const std::string& country, int count) {
    std::string rows;
    for (int i = 0; i < count; ++i) {
        rows += country + "\tC" + std::to_string(i) + "\t\t3000\t3100\t1000\tAfrica/Algiers\tN" +
                std::to_string(i) + "\n";
    }
    return rows;
}

TEST_F(BuildLocations, SourceWithoutMeccaFailsClearly) {
    ExpectFailure(Locations(Cities("EG\tCairo\tCairo\t3006\t3125\t7734614\tAfrica/Cairo\t\n")),
                  "the gazetteer has no Mecca");
}

TEST_F(BuildLocations, TooFewCitiesToPlaceMeccaFailClearly) {
    ExpectFailure(Locations(Cities("EG\tCairo\tCairo\t3006\t3125\t7734614\tAfrica/Cairo\t\n"
                                   "SA\tMecca\tMecca\t2143\t3983\t1323624\tAsia/Riyadh\t\n")),
                  "no number of cities gives Mecca its index");
}

TEST_F(BuildLocations, CitiesBeforeMeccaGiveItItsIndex) {
    // 37,183 records stand before Mecca's.
    const ProgramRun run = Locations(
        Cities(CitiesOf("DZ", 20000) + CitiesOf("EG", 17183) +
               "SA\tMecca\tMecca\t2143\t3983\t1323624\tAsia/Riyadh\t\n" + CitiesOf("SA", 3000)));
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, "40184 cities\n");
    EXPECT_EQ(GetInt16(Output("CI.DAT"), 37183 * 10 + 4), 2143);
    EXPECT_EQ(GetInt16(Output("SI.DAt"), 2 * 6 + 2), -32000 + 37183);
}

TEST_F(BuildLocations, EachCityHasItsZoneAndOtherNames) {
    Locations(Cities(CitiesOf("DZ", 20000) + CitiesOf("EG", 17183) +
                     "SA\tMecca\tMecca\t2143\t3983\t1323624\tAsia/Riyadh\tمكة,Mekka\n" +
                     CitiesOf("SA", 3000)));
    EXPECT_EQ(StringOf(Output("Z.DAT")), "Africa/Algiers\nAsia/Riyadh\n");
    const Bytes index = Output("ZI.DAT");
    ASSERT_EQ(index.size(), 40184U * 2);
    EXPECT_EQ(GetInt16(index, 37182 * 2), 1);
    EXPECT_EQ(GetInt16(index, 37183 * 2), 2);
    EXPECT_THAT(StringOf(Output("N.DAT")), testing::HasSubstr("\nN17182\nمكة,Mekka\nN0\n"));
}

TEST_F(BuildLocations, MoreCitiesThanACountryCanCountFail) {
    const ProgramRun run = Locations(
        Cities(CitiesOf("EG", 37183) + "SA\tMecca\tMecca\t2143\t3983\t1323624\tAsia/Riyadh\t\n" +
               CitiesOf("SA", 3000)));
    ExpectFailure(run, "16-bit field");
}

TEST_F(BuildLocations, CitiesOutOfTheOrderOfTheirCountriesFail) {
    const ProgramRun run = Locations(
        Cities(CitiesOf("EG", 17183) + CitiesOf("DZ", 20000) +
               "SA\tMecca\tMecca\t2143\t3983\t1323624\tAsia/Riyadh\t\n" + CitiesOf("SA", 3000)));
    ExpectFailure(run, "order of their countries");
}

TEST_F(BuildLocations, RowWithoutEightColumnsFailsNamingIt) {
    ExpectFailure(Locations(Cities("EG\tCairo\tCairo\t3006\t3125\n")), "EG\tCairo");
}

TEST_F(BuildLocations, CoordinateThatIsNoNumberFailsNamingIt) {
    ExpectFailure(Locations(Cities("SA\tMecca\tMecca\t21.43\t3983\t1\tAsia/Riyadh\t\n")),
                  "\"21.43\"");
}

TEST_F(BuildLocations, EmptySourceFails) {
    ExpectFailure(Locations(""), "cities.tsv");
    ExpectFailure(Locations(kCityColumns), "the gazetteer has no Mecca");
}

TEST_F(BuildLocations, MissingSourceFailsNamingIt) {
    ExpectFailure(RunProgram("build_locations", {folder / "nowhere", folder / "out"}, {}),
                  "nowhere/cities.tsv");
}

TEST_F(BuildTexts, TextsAreIndexedByEntryAndColumn) {
    const ProgramRun run =
        Compile("build_texts", "entry,name,1,2,3,4,5,6\n1,Name,a,b,c,ش,\"d,e\",f\n");
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, "1 texts, 8 bytes\n");
    const Bytes index = Output("TI.DAT");
    ASSERT_EQ(index.size(), 12U);
    EXPECT_EQ(GetInt16(index, 8), 5);
    EXPECT_EQ(GetInt16(index, 10), 8);
    EXPECT_EQ(StringOf(DecodeText(Output("T.DAT"))),
              "abc\xD4"
              "d,ef");
}

TEST_F(BuildTexts, GapInTheNumbersFails) {
    ExpectFailure(Compile("build_texts", "entry,name,1,2,3,4,5,6\n2,Name,a,b,c,d,e,f\n"), "row 1");
}

TEST_F(BuildTexts, MissingColumnFails) {
    ExpectFailure(Compile("build_texts", "entry,name,1,2,3,4,5,6\n1,Name,a,b,c,d,e\n"), "row 1");
}

TEST_F(BuildTexts, CharacterThatTheColumnLacksFails) {
    ExpectFailure(Compile("build_texts", "entry,name,1,2,3,4,5,6\n1,Name,ش,b,c,d,e,f\n"), "ش");
}

TEST_F(BuildTexts, UnclosedQuoteFails) {
    ExpectFailure(Compile("build_texts", "entry,name,1,2,3,4,5,6\n1,Name,\"a,b,c,d,e,f\n"),
                  "quoted field");
}

TEST_F(BuildTexts, TextsBeyondTheReachOfTheIndexFail) {
    const std::string longText(32767, 'x');
    ExpectFailure(
        Compile("build_texts", "entry,name,1,2,3,4,5,6\n1,Name," + longText + ",b,c,d,e,f\n"),
        "no room");
}

TEST_F(BuildTexts, EmptySourceFails) {
    ExpectFailure(Compile("build_texts", ""), "source");
}

TEST_F(BuildAngles, BandsAreStoredAsRecordsOfFive) {
    const ProgramRun run = Compile("build_angles", "limit,a,b,c\n-1,20,18,5\n3300,19,18,4\n");
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, "2 bands\n");
    EXPECT_THAT(Output("A.dat"), testing::ElementsAre(0xFF, 0xFF, 20 + 127, 18 + 127, 5 + 127, 0xE4,
                                                      0x0C, 19 + 127, 18 + 127, 4 + 127));
}

TEST_F(BuildAngles, LimitsThatDoNotRiseFail) {
    ExpectFailure(Compile("build_angles", "limit,a,b,c\n100,20,18,5\n100,19,18,4\n"), "rise");
}

TEST_F(BuildAngles, AnglesOutOfOrderFail) {
    ExpectFailure(Compile("build_angles", "limit,a,b,c\n-1,18,20,5\n"), "largest first");
    ExpectFailure(Compile("build_angles", "limit,a,b,c\n-1,61,20,5\n"), "60 down to 1");
    ExpectFailure(Compile("build_angles", "limit,a,b,c\n-1,20,18,0\n"), "60 down to 1");
    ExpectFailure(Compile("build_angles", "limit,a,b,c\n-1,20,18\n"), "three angles");
}

TEST_F(BuildAngles, EmptySourceFails) {
    ExpectFailure(Compile("build_angles", ""), "source");
    ExpectFailure(Compile("build_angles", "limit,a,b,c\n"), "no band");
}

constexpr const char* kHijriColumns = "year,first_day,1,2,3,4,5,6,7,8,9,10,11,12\n";
constexpr const char* kYear1447 = "1447,2025-06-26,30,29,30,30,30,29,30,29,30,29,30,29\n";
constexpr const char* kYear1448 = "1448,2026-06-16,30,29,30,29,30,29,30,29,30,29,30,28\n";

TEST_F(BuildHijri, YearsAreStoredAsRecordsOf18) {
    const ProgramRun run =
        Compile("build_hijri", std::string(kHijriColumns) + kYear1447 + kYear1448);
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, "2 years\n");
    const Bytes file = Output("UQ.DAT");
    ASSERT_EQ(file.size(), 36U);
    EXPECT_EQ(GetInt16(file, 0), 1447);
    EXPECT_EQ(GetInt32(file, 2), 45834);
    EXPECT_THAT(Bytes(file.begin() + 6, file.begin() + 18),
                testing::ElementsAre(30, 29, 30, 30, 30, 29, 30, 29, 30, 29, 30, 29));
    EXPECT_EQ(GetInt16(file, 18), 1448);
    EXPECT_EQ(GetInt32(file, 20), 46189);
    EXPECT_EQ(file.back(), 28);
}

TEST_F(BuildHijri, YearThatDoesNotFollowFails) {
    ExpectFailure(Compile("build_hijri", std::string(kHijriColumns) + kYear1447 + kYear1447),
                  "year 1447 does not begin");
    ExpectFailure(Compile("build_hijri", std::string(kHijriColumns) + kYear1447 +
                                             "1448,2026-06-17,30,29,30,29,30,29,30,29,30,29,30,29"),
                  "year 1448 does not begin");
}

TEST_F(BuildHijri, RowsThatAreNoYearsFail) {
    const auto fails = [this](const std::string& rows, const std::string& reason) {
        ExpectFailure(Compile("build_hijri", kHijriColumns + rows), reason);
    };
    fails("", "no year");
    fails("1447,2025-06-26,30\n", "twelve months");
    fails("1447,2025-06-26,31,29,30,30,30,29,30,29,30,29,30,29\n", "28 to 30 days");
    fails("1447,2025-06-31,30,29,30,30,30,29,30,29,30,29,30,29\n", "no date");
    fails("1447,26 June,30,29,30,30,30,29,30,29,30,29,30,29\n", "no date");
}

TEST_F(BuildSettings, RecordsTakeTheDefaultAngleOfTheirBand) {
    Compile("build_angles", "limit,a,b,c\n-1,20,15,5\n");
    const ProgramRun run = RunProgram("build_settings", {folder / "out/A.dat", folder / "out"}, {});
    EXPECT_EQ(run.status, 0) << run.err;
    SettingsBytes record{};
    const Bytes file = Output("AI.DAT");
    ASSERT_EQ(file.size(), record.size());
    std::copy(file.begin(), file.end(), record.begin());
    EXPECT_EQ(DecodeSettings(record).FajrAngle, 15.0);
}

TEST_F(BuildSettings, MissingBandsFail) {
    ExpectFailure(RunProgram("build_settings", {folder / "nowhere", folder / "out"}, {}),
                  "nowhere");
}

TEST_F(Compilers, WrongNumberOfArgumentsIsBadUsage) {
    for (const char* tool :
         {"build_angles", "build_athan", "build_locations", "build_settings", "build_texts"}) {
        EXPECT_EQ(RunProgram(tool, {"a"}, {}).status, 2) << tool;
        EXPECT_EQ(RunProgram(tool, {"a", "b", "c"}, {}).status, 2) << tool;
    }
}

}  // namespace
}  // namespace horavex
