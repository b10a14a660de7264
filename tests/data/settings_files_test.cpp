#include "store/settings_files.h"

#include "data/built_data.h"
#include "engine/current_year.h"
#include "engine/day_driver.h"
#include "engine/year_table.h"
#include "store/location_files.h"
#include "store/settings_record.h"
#include "store/stored_values.h"

namespace horavex {
namespace {

using SettingsFiles = BuiltData;

TEST_F(SettingsFiles, FreshInstallStandsInMeccaInItsZone) {
    LoadActiveSettings();
    LocationRecord place;
    EXPECT_EQ(LookupLocation(ActiveSettings.CityIndex, place), "Mecca, Mecca - Saudi Arabia");
    EXPECT_EQ(ActiveSettings.CityIndex, kMeccaCityIndex);
    EXPECT_EQ(ActiveSettings.TimeZone, 3.0);
}

TEST_F(SettingsFiles, FreshInstallHasTheDefaultMethod) {
    LoadActiveSettings();
    EXPECT_EQ(ActiveSettings.FajrAngle, 18.0);
    EXPECT_EQ(ActiveSettings.AsrRatio, 1.0);
    EXPECT_EQ(ActiveSettings.AthanType, kSoundAthan);
    EXPECT_EQ(ActiveSettings.QiblaMethod, 1);
    EXPECT_EQ(ActiveSettings.Language, 1);
    EXPECT_EQ(ActiveSettings.AlarmTime, 78);
    EXPECT_EQ(ActiveSettings.DstEnabled, 0);
}

TEST_F(SettingsFiles, ReservedTextIsBlank) {
    LoadActiveSettings();
    EXPECT_THAT(ActiveSettings.Reserved, testing::Each(std::uint8_t{' '}));
}

TEST_F(SettingsFiles, BothRecordsAreEqualAndWhole) {
    LoadActiveSettings();
    LoadWorkingSettings();
    EXPECT_TRUE(Settings == ActiveSettings);
    EXPECT_EQ(folder.ReadWhole("Dat\\AI.DAT").size(), kSettingsRecordSize);
    EXPECT_EQ(folder.ReadWhole("Dat\\Settings.DAT").size(), kSettingsRecordSize);
}

TEST_F(SettingsFiles, FreshInstallCalculatesAtOnce) {
    LoadActiveSettings();
    PeekIshaAngle();
    LookupLocation(ActiveSettings.CityIndex, ActiveLocation);
    CopyActiveToWorking();
    for (std::int16_t year = 2024; year <= 2030; ++year) {
        CurrentYear = year;
        RecalculateYear();
        EXPECT_EQ(CalcFailed, 0) << year;
        EXPECT_NEAR(Times[kZuhr][0], 12.4, 0.1) << year;
    }
    EXPECT_TRUE(dialogs.messages.empty());
}

}  // namespace
}  // namespace horavex
