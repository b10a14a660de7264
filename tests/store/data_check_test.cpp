#include "store/data_check.h"

#include <cmath>

#include "store/text_table.h"
#include "support/data_folder_test.h"

namespace horavex {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Gt;
using testing::IsEmpty;
using testing::StartsWith;

/// The sample has the countries 1 Brazil, 2 Egypt and 3 Saudi Arabia; the cities 1 Santa Rosa,
/// 2 São Paulo, 3 Cairo, 4 Ismailia and 5 Mecca; three provinces and three bands.
class DataCheckTest : public DataFolderTest {
protected:
    DataCheckTest() { data.WriteSample(); }

    static CheckReport Check() {
        CheckReport report;
        CheckDataFiles(report);
        return report;
    }

    static std::vector<std::string> Problems() { return Check().problems; }

    /// The problems of a record that is sound but for one field.
    template <typename Field>
    std::vector<std::string> ProblemsWith(Field SettingsRecord::*field, Field value) {
        SettingsRecord record = SampleSettings();
        record.*field = value;
        data.Write("Dat/Settings.DAT", RecordOf(record));
        return Problems();
    }
};

TEST_F(DataCheckTest, SoundFilesHaveNoProblem) {
    EXPECT_THAT(Problems(), IsEmpty());
    EXPECT_THAT(Check().passed, Gt(kTextEntries * 6 * 2));
}

TEST_F(DataCheckTest, MissingFileIsOneProblemThatNamesIt) {
    std::vector<std::string> files = DataFileNames();
    files.push_back("Dat/RI.DAT");
    for (const std::string& file : files) {
        data.WriteSample();
        data.Remove(file);
        EXPECT_THAT(Problems(), ElementsAre(StartsWith(file + ": ")));
    }
}

TEST_F(DataCheckTest, MonthOfAnImpossibleLengthIsAProblem) {
    data.SetByte("Dat/UQ.DAT", 18 + 17, 31);
    EXPECT_THAT(Problems(),
                ElementsAre("Dat/UQ.DAT: record 2: a month is not from 28 to 30 days long"));
    data.SetByte("Dat/UQ.DAT", 18 + 17, 27);
    EXPECT_THAT(Problems(), testing::SizeIs(1));
}

TEST_F(DataCheckTest, HijriYearThatDoesNotFollowIsAProblem) {
    const char* const problem = "Dat/UQ.DAT: record 2: it does not begin where the one before ends";
    data.SetInt16("Dat/UQ.DAT", 18, 1449);
    EXPECT_THAT(Problems(), ElementsAre(problem));
    data.SetInt16("Dat/UQ.DAT", 18, 1448);
    data.SetInt32("Dat/UQ.DAT", 20, 46189);
    EXPECT_THAT(Problems(), ElementsAre(problem));
}

TEST_F(DataCheckTest, EmptyFolderHasAProblemForEachFileButTheSettings) {
    for (const std::string& name : platform.files.List("/program/Dat")) {
        data.Remove("Dat/" + name);
    }
    EXPECT_EQ(Problems().size(), DataFileNames().size() + 1);
}

TEST_F(DataCheckTest, EveryFailingCallIsAProblemOfItsFile) {
    platform.failingFiles.FailCall(0);
    Problems();
    const int calls = platform.failingFiles.Calls();
    EXPECT_EQ(calls, 16 * 2);  // sixteen files, opened and read once
    for (int n = 1; n <= calls; ++n) {
        platform.failingFiles.FailCall(n);
        EXPECT_THAT(Problems(), ElementsAre(StartsWith("Dat/"))) << n;
    }
}

TEST_F(DataCheckTest, FileWithoutRecordsIsAProblem) {
    for (const std::string file : {"Dat/SI.DAt", "Dat/CI.DAT", "Dat/PI.DAT", "Dat/TI.DAT",
                                   "Dat/RI.DAT", "Dat/A.dat", "Dat/ZI.DAT"}) {
        data.WriteSample();
        data.ShrinkTo(file, 0);
        EXPECT_THAT(Problems(), Contains(file + ": there is no record"));
    }
}

TEST_F(DataCheckTest, CutRecordIsNamed) {
    data.ShrinkBy("Dat/SI.DAt", 1);
    EXPECT_THAT(Problems(),
                ElementsAre("Dat/SI.DAt: record 3: it is cut short",
                            "Dat/SI.DAt: the countries do not hold all cities of Dat/CI.DAT"));
    data.WriteSample();
    data.ShrinkBy("Dat/A.dat", 4);
    EXPECT_THAT(Problems(), ElementsAre("Dat/A.dat: record 3: it is cut short"));
}

TEST_F(DataCheckTest, NameThatEndsBeforeItStartsIsNamed) {
    data.SetInt32("Dat/CI.DAT", 30, 5);
    EXPECT_THAT(Problems(), ElementsAre("Dat/CI.DAT: record 3: no text from position 20 to 5 of "
                                        "Dat/C.DAt"));
}

TEST_F(DataCheckTest, NameBehindTheEndIsNamed) {
    data.ShrinkBy("Dat/S.DAT", 13);  // one byte more than "Saudi Arabia"
    EXPECT_THAT(Problems(),
                ElementsAre("Dat/SI.DAt: record 2: no text from position 7 to 12 of Dat/S.DAT",
                            "Dat/SI.DAt: record 3: no text from position 12 to 11 of Dat/S.DAT"));
}

TEST_F(DataCheckTest, NameBeforeTheFirstPositionIsNamed) {
    data.SetInt16("Dat/PI.DAT", 0, 0);
    EXPECT_THAT(Problems(), ElementsAre("Dat/PI.DAT: record 1: no text from position 0 to 18 of "
                                        "Dat/P.DAT"));
}

TEST_F(DataCheckTest, EmptyTextIsNamed) {
    data.WriteText(TextEntry{3}, 2, "");
    EXPECT_THAT(Problems(), ElementsAre(StartsWith("Dat/TI.DAT: record 14: no text from ")));
}

TEST_F(DataCheckTest, TextsBeyondSixteenBitsAreNamed) {
    data.WriteText(TextEntry{kTextEntries}, 5, std::string(32767, 'x'));
    const auto record = [](int number) { return "Dat/TI.DAT: record " + std::to_string(number); };
    EXPECT_THAT(Problems(),
                ElementsAre(StartsWith(record(kTextEntries * 6 - 1) + ": no text from position "),
                            StartsWith(record(kTextEntries * 6) + ": no text from position -")));
}

TEST_F(DataCheckTest, ControlCharactersAreNamed) {
    data.SetByte("Dat/S.DAT", 0, 137);  // line feed
    EXPECT_THAT(Problems(), ElementsAre("Dat/SI.DAt: record 1: its text holds control characters"));
    data.SetByte("Dat/S.DAT", 0, 0);
    EXPECT_THAT(Problems(), ElementsAre("Dat/SI.DAt: record 1: its text holds control characters"));
    data.SetByte("Dat/S.DAT", 0, 254);  // delete
    EXPECT_THAT(Problems(), ElementsAre("Dat/SI.DAt: record 1: its text holds control characters"));
    data.SetByte("Dat/S.DAT", 0, 159);  // blank
    EXPECT_THAT(Problems(), IsEmpty());
}

TEST_F(DataCheckTest, CoordinatesOffTheEarthAreNamed) {
    for (const int latitude : {9001, -9001, -32768}) {
        data.SetInt16("Dat/CI.DAT", 24, static_cast<std::int16_t>(latitude));
        EXPECT_THAT(Problems(),
                    ElementsAre("Dat/CI.DAT: record 3: its coordinates are off the earth"));
    }
    data.SetInt16("Dat/CI.DAT", 24, -9000);
    for (const int longitude : {18001, -18001}) {
        data.SetInt16("Dat/CI.DAT", 46, static_cast<std::int16_t>(longitude));
        EXPECT_THAT(Problems(),
                    ElementsAre("Dat/CI.DAT: record 5: its coordinates are off the earth"));
    }
    data.SetInt16("Dat/CI.DAT", 46, -18000);
    EXPECT_THAT(Problems(), IsEmpty());
}

TEST_F(DataCheckTest, ProvinceThatIsNotThereIsNamed) {
    data.SetInt16("Dat/CI.DAT", 28, 4);
    EXPECT_THAT(Problems(), ElementsAre("Dat/CI.DAT: record 3: there is no province 4"));
    data.SetInt16("Dat/CI.DAT", 28, -1);
    EXPECT_THAT(Problems(), ElementsAre("Dat/CI.DAT: record 3: there is no province -1"));
    data.SetInt16("Dat/CI.DAT", 28, 3);
    EXPECT_THAT(Problems(), IsEmpty());
}

TEST_F(DataCheckTest, CountryWhoseCitiesDoNotFollowIsNamed) {
    data.SetInt16("Dat/SI.DAt", 10, 3);  // Egypt takes Mecca
    EXPECT_THAT(Problems(),
                ElementsAre("Dat/SI.DAt: record 3: its cities do not follow those of the country "
                            "before"));
    data.SetInt16("Dat/SI.DAt", 10, 2);
    data.SetInt16("Dat/SI.DAt", 2, -31999);
    data.SetInt16("Dat/SI.DAt", 4, 1);
    EXPECT_THAT(Problems(),
                ElementsAre("Dat/SI.DAt: record 1: its cities do not follow those of the country "
                            "before"));
}

TEST_F(DataCheckTest, NegativeCityCountIsNamed) {
    data.SetInt16("Dat/SI.DAt", 16, -1);
    EXPECT_THAT(Problems(), Contains("Dat/SI.DAt: record 3: its cities do not follow those of the "
                                     "country before"));
}

TEST_F(DataCheckTest, CityOfNoCountryIsAProblem) {
    data.SetInt16("Dat/SI.DAt", 16, 0);
    EXPECT_THAT(Problems(),
                ElementsAre("Dat/SI.DAt: the countries do not hold all cities of Dat/CI.DAT"));
}

TEST_F(DataCheckTest, MissingTextsAreAProblem) {
    data.ShrinkBy("Dat/TI.DAT", 2);
    EXPECT_THAT(Problems(), ElementsAre("Dat/TI.DAT: fewer than " + std::to_string(kTextEntries) +
                                        " entries in six languages"));
}

TEST_F(DataCheckTest, NotOneZoneForEachCityIsAProblem) {
    data.ShrinkBy("Dat/ZI.DAT", 2);
    EXPECT_THAT(Problems(), ElementsAre("Dat/ZI.DAT: not one zone for each city of Dat/CI.DAT"));
}

TEST_F(DataCheckTest, ZoneThatNoLineHasIsNamed) {
    data.SetInt16("Dat/ZI.DAT", 4, 4);
    data.SetInt16("Dat/ZI.DAT", 8, -1);
    EXPECT_THAT(Problems(), ElementsAre("Dat/ZI.DAT: record 3: there is no zone 4",
                                        "Dat/ZI.DAT: record 5: there is no zone -1"));
    data.SetInt16("Dat/ZI.DAT", 4, 3);
    data.SetInt16("Dat/ZI.DAT", 8, 0);
    EXPECT_THAT(Problems(), IsEmpty());
}

TEST_F(DataCheckTest, FileWithoutLinesIsAProblem) {
    for (const std::string file : {"Dat/Z.DAT", "Dat/N.DAT"}) {
        data.WriteSample();
        data.ShrinkTo(file, 0);
        EXPECT_THAT(Problems(), Contains(file + ": there is no line"));
    }
}

TEST_F(DataCheckTest, ZoneNamesThatAreNoneAreNamed) {
    data.Write("Dat/Z.DAT", "A/B\n\nC\xFF\nD/E");
    const std::string unsound = ": it is empty, no UTF-8 or holds control characters";
    EXPECT_THAT(Problems(),
                ElementsAre("Dat/Z.DAT: the last line is cut short", "Dat/Z.DAT: line 2" + unsound,
                            "Dat/Z.DAT: line 3" + unsound));
}

TEST_F(DataCheckTest, OtherNamesOfOtherCitiesAreAProblem) {
    const std::string problem = "Dat/N.DAT: not one line for each city of Dat/CI.DAT";
    data.WriteOtherNames("");
    EXPECT_THAT(Problems(), ElementsAre(problem));
    data.Write("Dat/N.DAT", "\n\n\n\n");
    EXPECT_THAT(Problems(), ElementsAre(problem));
    data.Write("Dat/N.DAT", "\n\n\n\n\n");
    EXPECT_THAT(Problems(), IsEmpty());
}

TEST_F(DataCheckTest, OtherNamesThatAreNoneAreNamed) {
    data.Write("Dat/N.DAT", "A,,B\nA\tB\n\xFF\nA,\nA,B\n");
    const std::string unsound = ": it is empty, no UTF-8 or holds control characters";
    EXPECT_THAT(Problems(),
                ElementsAre("Dat/N.DAT: line 1" + unsound, "Dat/N.DAT: line 2" + unsound,
                            "Dat/N.DAT: line 3" + unsound, "Dat/N.DAT: line 4" + unsound));
}

TEST_F(DataCheckTest, RanksAreOneForEachCity) {
    data.ShrinkBy("Dat/RI.DAT", 2);
    EXPECT_THAT(Problems(), ElementsAre("Dat/RI.DAT: not one rank for each city of Dat/CI.DAT"));
    data.WriteRank(3);
    data.WriteRank(6);
    EXPECT_THAT(Problems(), ElementsAre("Dat/RI.DAT: not one rank for each city of Dat/CI.DAT"));
}

TEST_F(DataCheckTest, BandsOutOfOrderAreNamed) {
    data.SetInt16("Dat/A.dat", 5, -1);
    EXPECT_THAT(Problems(),
                ElementsAre("Dat/A.dat: record 2: its limit does not lie above the one before"));
}

TEST_F(DataCheckTest, FirstBandMustReachTheEquator) {
    data.SetInt16("Dat/A.dat", 0, 0);
    EXPECT_THAT(Problems(),
                ElementsAre("Dat/A.dat: record 1: its limit does not lie above the one before"));
}

TEST_F(DataCheckTest, AnglesOutOfOrderAreNamed) {
    constexpr const char* kProblem =
        "Dat/A.dat: record 1: its angles do not go from the largest to the smallest";
    data.SetByte("Dat/A.dat", 2, 17 + 127);  // below the default of 18
    EXPECT_THAT(Problems(), ElementsAre(kProblem));
    data.SetByte("Dat/A.dat", 2, 18 + 127);
    data.SetByte("Dat/A.dat", 4, 19 + 127);
    EXPECT_THAT(Problems(), ElementsAre(kProblem));
    data.SetByte("Dat/A.dat", 4, 0);
    EXPECT_THAT(Problems(), ElementsAre(kProblem));
    data.SetByte("Dat/A.dat", 4, 1 + 127);
    EXPECT_THAT(Problems(), IsEmpty());
}

TEST_F(DataCheckTest, SettingsMayBeMissing) {
    data.Remove("Dat/AI.DAT");
    data.Remove("Dat/Settings.DAT");
    EXPECT_THAT(Problems(), IsEmpty());
}

TEST_F(DataCheckTest, SettingsMayHaveTheLongForm) {
    Bytes record = data.Read("Dat/AI.DAT");
    record.resize(128, 0xEE);
    data.Write("Dat/AI.DAT", record);
    EXPECT_THAT(Problems(), IsEmpty());
}

TEST_F(DataCheckTest, ShortSettingsAreNamed) {
    data.ShrinkTo("Dat/AI.DAT", 96);
    EXPECT_THAT(Problems(), ElementsAre("Dat/AI.DAT: record 1: shorter than 97 bytes"));
    data.ShrinkTo("Dat/AI.DAT", 0);
    EXPECT_THAT(Problems(), ElementsAre("Dat/AI.DAT: record 1: shorter than 97 bytes"));
}

TEST_F(DataCheckTest, FloatsOutOfRangeAreNamed) {
    const std::string place = "Dat/Settings.DAT: record 1: ";
    for (const double wrong : {-0.25, 90.25, std::nan("")}) {
        EXPECT_THAT(ProblemsWith(&SettingsRecord::FajrAngle, wrong),
                    ElementsAre(place + "FajrAngle is no angle"));
    }
    for (const double wrong : {0.0, 1.5, 3.0, std::nan("")}) {
        EXPECT_THAT(ProblemsWith(&SettingsRecord::AsrRatio, wrong),
                    ElementsAre(place + "AsrRatio is neither 1 nor 2"));
    }
    for (const double wrong : {-12.25, 12.25, std::nan("")}) {
        EXPECT_THAT(ProblemsWith(&SettingsRecord::TimeZone, wrong),
                    ElementsAre(place + "TimeZone is not from -12 to 12"));
    }
}

struct FieldRange {
    std::int16_t SettingsRecord::*field;
    int lowest;
    int highest;
    const char* problem;
};

TEST_F(DataCheckTest, IntegersOutOfRangeAreNamed) {
    const FieldRange ranges[] = {
        {&SettingsRecord::AthanType, 1, 3, "AthanType is not from 1 to 3"},
        {&SettingsRecord::QiblaMethod, 1, 2, "QiblaMethod is neither 1 nor 2"},
        {&SettingsRecord::Language, 0, 6, "Language is not from 0 to 6"},
        {&SettingsRecord::AlarmTime, 0, 287, "AlarmTime is not from 0 to 287"},
        {&SettingsRecord::DstStart, 1, 366, "a day of daylight saving is not from 1 to 366"},
        {&SettingsRecord::DstEnd, 1, 366, "a day of daylight saving is not from 1 to 366"},
    };
    for (const FieldRange& range : ranges) {
        for (const int right : {range.lowest, range.highest}) {
            EXPECT_THAT(ProblemsWith(range.field, static_cast<std::int16_t>(right)), IsEmpty());
        }
        for (const int wrong : {range.lowest - 1, range.highest + 1, -32768, 32767}) {
            EXPECT_THAT(ProblemsWith(range.field, static_cast<std::int16_t>(wrong)),
                        ElementsAre(std::string("Dat/Settings.DAT: record 1: ") + range.problem));
        }
    }
}

TEST_F(DataCheckTest, DaysDoNotMatterWithoutDaylightSaving) {
    SettingsRecord record = SampleSettings();
    record.DstEnabled = record.DstStart = record.DstEnd = 0;
    data.Write("Dat/Settings.DAT", RecordOf(record));
    EXPECT_THAT(Problems(), IsEmpty());
}

}  // namespace
}  // namespace horavex
