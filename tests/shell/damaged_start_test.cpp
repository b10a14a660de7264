// Starts over stored settings and bands that are damaged: each comes up, and the user can set what
// is wrong.

#include <cmath>
#include <limits>
#include <random>

#include "base/program_state.h"
#include "base/rounding.h"
#include "config/settings_window.h"
#include "engine/day_driver.h"
#include "shell/tick.h"
#include "store/angle_band.h"
#include "store/city_search.h"
#include "store/location_files.h"
#include "store/location_text.h"
#include "support/data_folder.h"
#include "support/program_test.h"
#include "windows/frm_wizard.h"

namespace horavex {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

constexpr const char* kActive = "/program/Dat/AI.DAT";
constexpr const char* kWorking = "/program/Dat/Settings.DAT";
constexpr const char* kBands = "/program/Dat/A.dat";
constexpr const char* kDamaged =
    "The stored settings are damaged. Please check all settings and set them again.";

struct DamagedStart : ProgramTest {
    DamagedStart() {
        LoadActiveSettings();
        record = ActiveSettings;
        platform.registry.CreateKey("Software\\Horavex\\Settings");
        StoreIsha("18");
    }

    void StoreIsha(const std::string& text) {
        platform.registry.SetValue("Software\\Horavex\\Settings", "Isha Dep Angle", text);
    }

    void StartOver(const SettingsRecord& stored) {
        platform.files.WriteWhole(kActive, RecordOf(stored));
        platform.files.WriteWhole(kWorking, RecordOf(stored));
        Start();
    }

    void NextStart() {
        platform.dialogs.messages.clear();
        ResetProgramState();
        BindWindows();
        Start();
    }

    static void SetDefaults() {
        form().cmdDefault.UserClick();
        form().SettingsSet.UserClick();
    }

    static SettingsForm& form() { return *HoravexMainForm; }

    SettingsRecord record;
};

class WildCity : public DamagedStart, public testing::WithParamInterface<std::int16_t> {};

TEST_P(WildCity, IsToldOnceAndTheSettingsWindowMendsIt) {
    record.CityIndex = GetParam();
    StartOver(record);
    ASSERT_THAT(platform.dialogs.messages, SizeIs(1));
    EXPECT_EQ(platform.dialogs.messages[0].text, kDamaged);
    EXPECT_EQ(platform.dialogs.messages[0].icon, MessageIcon::kExclamation);
    EXPECT_TRUE(form().Visible());
    EXPECT_TRUE(frmMain->Visible());
    EXPECT_EQ(form().lblCity.Caption(), "Mecca, Mecca - Saudi Arabia");
    SetDefaults();
    EXPECT_EQ(CalcFailed, 0);
    NextStart();
    EXPECT_THAT(platform.dialogs.messages, IsEmpty());
    EXPECT_EQ(ActiveCityText, "Mecca, Mecca - Saudi Arabia");
}

INSTANTIATE_TEST_SUITE_P(BeforeTheFirst, WildCity, testing::Values(-32768, -32001));

TEST_F(DamagedStart, CityOfTheStoredRecordIsTheOneOnView) {
    const SettingsRecord sound = record;
    platform.files.WriteWhole(
        kWorking, RecordOf([&] {
            SettingsRecord london = sound;
            london.CityIndex = SearchCities(ListCities(), "London, England").at(0).city->cityIndex;
            london.TimeZone = 0.0;
            return london;
        }()));
    record.CityIndex = -32768;
    platform.files.WriteWhole(kActive, RecordOf(record));
    Start();
    ASSERT_TRUE(form().Visible());
    EXPECT_EQ(Location.City.Name, "London");
    EXPECT_THAT(form().lblCity.Caption(), testing::StartsWith("London"));
    EXPECT_EQ(form().txtTimeZone.Text(), "+0.00");
}

TEST_F(DamagedStart, CityBehindTheLastIsToldToo) {
    DataFolder(platform.files).ShrinkBy("Dat/CI.DAT", 100);
    record.CityIndex = 32767;
    StartOver(record);
    ASSERT_THAT(platform.dialogs.messages, SizeIs(1));
    EXPECT_EQ(platform.dialogs.messages[0].text, kDamaged);
    EXPECT_EQ(ActiveCityText, "Mecca, Mecca - Saudi Arabia");
}

class WildLanguage : public DamagedStart, public testing::WithParamInterface<std::int16_t> {};

TEST_P(WildLanguage, IsToldInTheFirstLanguageAndTheSettingsWindowMendsIt) {
    record.Language = GetParam();
    StartOver(record);
    ASSERT_THAT(platform.dialogs.messages, SizeIs(1));
    EXPECT_EQ(platform.dialogs.messages[0].text, kDamaged);
    EXPECT_TRUE(form().Visible());
    EXPECT_EQ(form().fraCity.Caption(), "Location");
    SetDefaults();
    EXPECT_EQ(ActiveSettings.Language, 1);
    NextStart();
    EXPECT_THAT(platform.dialogs.messages, IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Columns, WildLanguage, testing::Values(-32768, -1, 7, 32767));

class WildDays : public DamagedStart,
                 public testing::WithParamInterface<std::pair<std::int16_t, std::int16_t>> {};

TEST_P(WildDays, AreToldOnceAndTheSettingsWindowMendsThem) {
    record.DstEnabled = 1;
    std::tie(record.DstStart, record.DstEnd) = GetParam();
    StartOver(record);
    ASSERT_THAT(platform.dialogs.messages, SizeIs(1));
    EXPECT_THAT(platform.dialogs.messages[0].text,
                testing::HasSubstr("Please check the daylight saving days"));
    EXPECT_FALSE(fMessage->IsLoaded());
    EXPECT_TRUE(form().Visible());
    SetDefaults();
    EXPECT_EQ(CalcFailed, 0);
    NextStart();
    EXPECT_THAT(platform.dialogs.messages, IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Days, WildDays,
                         testing::Values(std::pair(0, 100), std::pair(-32768, 100),
                                         std::pair(1, 32767), std::pair(32767, -32768)));

class WildZone : public DamagedStart, public testing::WithParamInterface<double> {};

TEST_P(WildZone, IsToldOnceAndTheSettingsWindowMendsIt) {
    record.TimeZone = GetParam();
    StartOver(record);
    EXPECT_THAT(platform.dialogs.messages, SizeIs(1));
    EXPECT_EQ(CalcFailed, -1);
    EXPECT_TRUE(form().Visible());
    form().SettingsSet.UserClick();
    EXPECT_THAT(platform.dialogs.messages, SizeIs(2)) << "the box's zone is refused";
    SetDefaults();
    EXPECT_EQ(CalcFailed, 0);
    EXPECT_EQ(ActiveSettings.TimeZone, 3.0);
}

INSTANTIATE_TEST_SUITE_P(Zones, WildZone,
                         testing::Values(std::numeric_limits<double>::quiet_NaN(),
                                         std::numeric_limits<double>::infinity(),
                                         -std::numeric_limits<double>::infinity(), 9.3e16, -1e300));

TEST_F(DamagedStart, WildAnglesAndRatioAreMendedByDefaults) {
    record.FajrAngle = std::numeric_limits<double>::quiet_NaN();
    record.AsrRatio = 1e300;
    StartOver(record);
    EXPECT_TRUE(form().Visible());
    SetDefaults();
    EXPECT_EQ(CalcFailed, 0);
    EXPECT_EQ(ActiveSettings.FajrAngle, 18.0);
}

TEST_F(DamagedStart, WildWorkingRecordGivesWayToTheAcceptedCityAndLanguage) {
    SettingsRecord working = record;
    working.CityIndex = -32768;
    working.Language = -77;
    platform.files.WriteWhole(kActive, RecordOf(record));
    platform.files.WriteWhole(kWorking, RecordOf(working));
    Start();
    EXPECT_THAT(platform.dialogs.messages, IsEmpty());
    EXPECT_EQ(Settings.CityIndex, record.CityIndex);
    EXPECT_EQ(Settings.Language, record.Language);
    EXPECT_EQ(Location.City.Name, "Mecca");
}

TEST_F(DamagedStart, MissingRecordIsNoDamage) {
    platform.files.Delete(kActive);
    Start();
    EXPECT_THAT(platform.dialogs.messages, IsEmpty());
    EXPECT_TRUE(form().Visible());
}

TEST_F(DamagedStart, MissingBandsLeaveTheLimitsOfTheDefinition) {
    platform.files.Delete(kBands);
    StartOver(record);
    EXPECT_EQ(form().hsDepr.Min(), 0);
    EXPECT_EQ(form().hsDepr2.Max(), 90);
    EXPECT_EQ(IshaAngle, 18.0);
    form().SettingsSet.UserClick();
    EXPECT_EQ(CalcFailed, 0);
    EXPECT_EQ(Stored("Isha Dep Angle"), "18");
    SetDefaults();
    EXPECT_EQ(ActiveSettings.FajrAngle, 18.0);
}

TEST_F(DamagedStart, BandsThatBeginBehindTheLatitudeLeaveThemToo) {
    platform.files.Delete(kBands);
    DataFolder(platform.files).WriteBand(8000, {12, 11, 3});
    StartOver(record);
    EXPECT_EQ(form().hsDepr2.Max(), 90);
    EXPECT_EQ(IshaAngle, 18.0);
}

TEST_F(DamagedStart, TopmostIshaAngleIsThereAgainAfterAStart) {
    StoreIsha("21");  // the largest whole degree of the band and four quarters
    StartOver(record);
    EXPECT_EQ(form().hsDepr2.Max(), 20);
    EXPECT_EQ(IshaAngle, 21.0);
    EXPECT_EQ(form().hsDepr2.Value(), 20);
    EXPECT_EQ(form().hsDepr21.Value(), 4);
    frmMain->mnuWizard.UserClick();
    EXPECT_EQ(IshaAngle, 21.0);
    frmWizard->Unload();
    form().SettingsSet.UserClick();
    EXPECT_EQ(Stored("Isha Dep Angle"), "21");
}

TEST_F(DamagedStart, IshaAngleAboveTheRangeStaysUntilTheUserMovesASlider) {
    StoreIsha("22.5");
    StartOver(record);
    EXPECT_EQ(IshaAngle, 22.5);
    EXPECT_EQ(form().hsDepr2.Value(), 20);
}

TEST_F(DamagedStart, QiblaOfTheStoredPlaceIsThereThoughItsYearFailed) {
    record.FajrAngle = 1.0;
    StartOver(record);
    ASSERT_EQ(CalcFailed, -1);
    EXPECT_THAT(frmMain->lblQibla.Caption(), testing::HasSubstr("Qibla: "));
}

/// Random stored states, the same ones each time.
class RandomStart : public DamagedStart {
protected:
    int Below(int end) { return std::uniform_int_distribution<int>(0, end - 1)(random_); }

    Bytes RandomBytes(int most) {
        Bytes bytes(static_cast<std::size_t>(Below(most + 1)));
        for (std::uint8_t& byte : bytes) {
            byte = static_cast<std::uint8_t>(Below(256));
        }
        return bytes;
    }

    /// A sound record with some bytes spoiled, or bytes that never were one.
    Bytes SpoiledRecord() {
        if (Below(4) == 0) {
            return RandomBytes(130);
        }
        Bytes bytes = RecordOf(record);
        for (int spoiled = Below(6); spoiled > 0; --spoiled) {
            bytes[static_cast<std::size_t>(55 + Below(42))] = static_cast<std::uint8_t>(Below(256));
        }
        return bytes;
    }

    std::string RandomAngle() {
        constexpr const char* kTexts[] = {"18",    "-1",  "1e400", "abc", "",
                                          "1e300", "nan", "89.75", "0",   "12,25"};
        return kTexts[Below(static_cast<int>(std::size(kTexts)))];
    }

    void SpoilFiles() {
        platform.files.WriteWhole(kActive, SpoiledRecord());
        platform.files.WriteWhole(kWorking, SpoiledRecord());
        if (Below(3) == 0) {
            platform.files.WriteWhole(kBands, RandomBytes(40));
        }
        StoreIsha(RandomAngle());
    }

    void UseIt() {
        for (int tick = 0; tick < 3; ++tick) {
            platform.clock.Advance(1.0);
            tmrUpdate_Timer();
        }
        for (int page = 0; page < 5 && frmWizard->IsLoaded(); ++page) {
            frmWizard->cmdNext.UserClick();
        }
        frmMain->mnumSettings.UserClick();
        SetDefaults();
        form().UserClose();
        frmMain->mnuPrayerTimes.UserClick();
        platform.clock.Set(platform.clock.Today() + 2.5);
        tmrUpdate_Timer();
    }

private:
    std::mt19937 random_{20261122};
};

TEST_F(RandomStart, ComesUpAndIsOfUseWhateverIsStored) {
    const Bytes bands = platform.folder.ReadWhole("Dat/A.dat");
    for (int round = 0; round < 120; ++round) {
        SCOPED_TRACE("round " + std::to_string(round));
        SetClock(2026, 11, 21, 12, 0, 0);
        platform.files.WriteWhole(kBands, bands);
        SpoilFiles();
        ASSERT_NO_THROW(NextStart());
        EXPECT_TRUE(frmMain->Visible());
        EXPECT_TRUE(frmMain->tmrUpdate.Running());
        EXPECT_FALSE(fMessage->Visible());
        ASSERT_NO_THROW(UseIt());
        EXPECT_TRUE(form().Enabled());
    }
}

}  // namespace
}  // namespace horavex
