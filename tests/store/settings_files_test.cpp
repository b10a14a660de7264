#include "store/settings_files.h"

#include <random>

#include "base/fault.h"
#include "store/location_record.h"
#include "support/data_folder_test.h"

namespace horavex {
namespace {

constexpr const char* kActiveFile = "Dat/AI.DAT";
constexpr const char* kWorkingFile = "Dat/Settings.DAT";

class SettingsFilesTest : public DataFolderTest {
protected:
    /// A record in the fixed-length form: 128 bytes, the last 31 without meaning.
    void WriteLongForm(const char* file, const SettingsRecord& settings) {
        Bytes bytes = RecordOf(settings);
        for (int i = 1; i <= 31; ++i) {
            bytes.push_back(static_cast<std::uint8_t>(i));
        }
        data.Write(file, bytes);
    }

    static SettingsRecord OtherSettings() {
        SettingsRecord settings = SampleSettings();
        settings.Reserved.fill(0xEE);
        settings.FajrAngle = 15.0;
        settings.CityIndex = 5183;
        return settings;
    }
};

TEST_F(SettingsFilesTest, ActiveSettingsStandInOneFileAndWorkingOnesInAnother) {
    data.Write(kActiveFile, RecordOf(SampleSettings()));
    data.Write(kWorkingFile, RecordOf(OtherSettings()));
    LoadActiveSettings();
    EXPECT_EQ(ActiveSettings, SampleSettings());
    EXPECT_EQ(Settings, SettingsRecord());
    LoadWorkingSettings();
    EXPECT_EQ(Settings, OtherSettings());
    EXPECT_EQ(ActiveSettings, SampleSettings());
}

TEST_F(SettingsFilesTest, SavedRecordIs97Bytes) {
    ActiveSettings = SampleSettings();
    Settings = OtherSettings();
    SaveActiveSettings();
    EXPECT_EQ(data.Read(kActiveFile), RecordOf(SampleSettings()));
    EXPECT_TRUE(data.Read(kWorkingFile).empty());
    SaveWorkingSettings();
    EXPECT_EQ(data.Read(kWorkingFile), RecordOf(OtherSettings()));
    EXPECT_EQ(data.Read(kActiveFile), RecordOf(SampleSettings()));
}

TEST_F(SettingsFilesTest, LongFormIsReadAndRewrittenWithItsTailKept) {
    WriteLongForm(kActiveFile, SampleSettings());
    const Bytes before = data.Read(kActiveFile);
    LoadActiveSettings();
    EXPECT_EQ(ActiveSettings, SampleSettings());
    SaveActiveSettings();
    EXPECT_EQ(data.Read(kActiveFile), before);

    ActiveSettings = OtherSettings();
    SaveActiveSettings();
    const Bytes after = data.Read(kActiveFile);
    ASSERT_EQ(after.size(), 128U);
    EXPECT_EQ(Bytes(after.begin(), after.begin() + 97), RecordOf(OtherSettings()));
    EXPECT_TRUE(std::equal(after.begin() + 97, after.end(), before.begin() + 97));
}

TEST_F(SettingsFilesTest, EveryLengthGivesTheRecordOrZeros) {
    for (const char* file : {kActiveFile, kWorkingFile}) {
        for (std::size_t length = 0; length <= 130; ++length) {
            Bytes bytes = RecordOf(SampleSettings());
            bytes.resize(length, 0x77);
            data.Write(file, bytes);
            Settings = ActiveSettings = OtherSettings();
            file == kActiveFile ? LoadActiveSettings() : LoadWorkingSettings();
            EXPECT_EQ(file == kActiveFile ? ActiveSettings : Settings,
                      length < 97 ? SettingsRecord() : SampleSettings())
                << file << " of " << length << " bytes";
        }
    }
}

TEST_F(SettingsFilesTest, ShortFileIsRewrittenWhole) {
    data.Write(kActiveFile, Bytes(40, 0x77));
    ActiveSettings = SampleSettings();
    SaveActiveSettings();
    EXPECT_EQ(data.Read(kActiveFile), RecordOf(SampleSettings()));
}

TEST_F(SettingsFilesTest, MissingFilesGiveRecordsOfZeros) {
    Settings = ActiveSettings = SampleSettings();
    LoadActiveSettings();
    LoadWorkingSettings();
    EXPECT_EQ(ActiveSettings, SettingsRecord());
    EXPECT_EQ(Settings, SettingsRecord());
}

TEST_F(SettingsFilesTest, OversizedFileIsReadFromItsFirstByte) {
    Bytes bytes = RecordOf(SampleSettings());
    bytes.resize(1000000, 0x55);
    data.Write(kActiveFile, bytes);
    LoadActiveSettings();
    EXPECT_EQ(ActiveSettings, SampleSettings());
    SaveActiveSettings();
    EXPECT_EQ(data.Read(kActiveFile), bytes);
}

TEST_F(SettingsFilesTest, WhateverAFileHoldsIsUsedAndWrittenBackUnchanged) {
    std::mt19937 random(21);  // a fixed seed
    for (int run = 0; run < 2000; ++run) {
        Bytes bytes(97 + random() % 40);
        for (std::uint8_t& byte : bytes) {
            byte = static_cast<std::uint8_t>(random());
        }
        data.Write(kActiveFile, bytes);
        LoadActiveSettings();
        CopyActiveToWorking();
        EXPECT_EQ(RecordOf(Settings), Bytes(bytes.begin(), bytes.begin() + 97));
        SaveActiveSettings();
        EXPECT_EQ(data.Read(kActiveFile), bytes);
    }
}

TEST_F(SettingsFilesTest, EveryFailingCallOfASaveLeavesTheOldOrTheNewRecord) {
    ActiveSettings = OtherSettings();
    for (const WriteFailure failure : {WriteFailure::kAtStart, WriteFailure::kHalfWay}) {
        for (int n = 1; n <= 3; ++n) {  // open, read, write
            WriteLongForm(kActiveFile, SampleSettings());
            const Bytes before = data.Read(kActiveFile);
            platform.failingFiles.FailCall(n, failure);
            if (n == 3) {
                EXPECT_THROW(SaveActiveSettings(), FileFault);
                EXPECT_EQ(data.Read(kActiveFile), before);
            } else {  // the former bytes could not be read: the record alone is written
                SaveActiveSettings();
                EXPECT_EQ(data.Read(kActiveFile), RecordOf(OtherSettings()));
            }
        }
    }
    platform.failingFiles.FailCall(0);
    SaveActiveSettings();
    EXPECT_EQ(platform.failingFiles.Calls(), 3);
}

TEST_F(SettingsFilesTest, EveryFailingCallOfALoadGivesZerosAsAMissingFileDoes) {
    data.Write(kActiveFile, RecordOf(SampleSettings()));
    for (int n = 1; n <= 2; ++n) {  // open, read
        ActiveSettings = OtherSettings();
        platform.failingFiles.FailCall(n);
        LoadActiveSettings();
        EXPECT_EQ(ActiveSettings, SettingsRecord());
        LoadActiveSettings();
        EXPECT_EQ(ActiveSettings, SampleSettings());
    }
}

TEST_F(SettingsFilesTest, SaveKeepsTheSpellingOfAFileThatIsThere) {
    data.Write("dat/ai.dat", RecordOf(SampleSettings()));
    ActiveSettings = OtherSettings();
    SaveActiveSettings();
    EXPECT_EQ(data.Read("dat/ai.dat"), RecordOf(OtherSettings()));
    EXPECT_FALSE(platform.files.Exists("/program/Dat"));
}

TEST_F(SettingsFilesTest, WorkingStateBecomesACopyOfTheAcceptedOne) {
    ActiveSettings = SampleSettings();
    ActiveLocation.Country = "Egypt";
    ActiveLocation.City = {"Cairo", "", 3006, 3125, 0};
    ActiveCityText = "Cairo - Egypt";
    CityText = "left over";
    Location.City.Province = "left over";
    IshaAngle = 17.5;
    CopyActiveToWorking();
    EXPECT_EQ(Settings, SampleSettings());
    EXPECT_EQ(Location.Country, "Egypt");
    EXPECT_EQ(Location.City.Name, "Cairo");
    EXPECT_EQ(Location.City.Province, "");
    EXPECT_EQ(Location.City.Latitude, 3006);
    EXPECT_EQ(CityText, "Cairo - Egypt");
    EXPECT_EQ(IshaAngle, 17.5);
}

TEST_F(SettingsFilesTest, SettingsWindowSeesTheFailedFieldsButTheAcceptedAngles) {
    SettingsRecord failed = OtherSettings();
    failed.DstStart = 7;
    data.Write(kWorkingFile, RecordOf(failed));
    Settings = SampleSettings();
    IshaAngle = 17.5;
    ReloadWorkingSettings();
    SettingsRecord expected = failed;
    expected.FajrAngle = SampleSettings().FajrAngle;
    EXPECT_EQ(Settings, expected);
    EXPECT_EQ(IshaAngle, 17.5);
}

TEST_F(SettingsFilesTest, ReloadWithoutAFileKeepsTheAngleAlone) {
    Settings = SampleSettings();
    ReloadWorkingSettings();
    SettingsRecord expected;
    expected.FajrAngle = SampleSettings().FajrAngle;
    EXPECT_EQ(Settings, expected);
}

}  // namespace
}  // namespace horavex
