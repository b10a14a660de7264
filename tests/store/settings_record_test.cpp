#include "store/settings_record.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <random>

#include "base/program_state.h"

namespace horavex {
namespace {

using testing::Each;

/// The bytes of a record in which all is 0 but one field.
template <typename Field>
SettingsBytes EncodeWith(Field SettingsRecord::*field, Field value) {
    SettingsRecord record;
    record.*field = value;
    return EncodeSettings(record);
}

SettingsBytes ZerosBut(std::size_t offset, const Bytes& bytes) {
    SettingsBytes record{};
    std::copy(bytes.begin(), bytes.end(), record.begin() + static_cast<std::ptrdiff_t>(offset));
    return record;
}

TEST(SettingsRecord, HasThirteenFieldsIn97Bytes) {
    EXPECT_EQ(kSettingsRecordSize, 97U);
    EXPECT_THAT(EncodeSettings(SettingsRecord()), Each(0));
}

TEST(SettingsRecord, ReservedStandsFirstIn55RawBytes) {
    SettingsRecord record;
    record.Reserved.fill(0xA5);
    EXPECT_EQ(EncodeSettings(record), ZerosBut(0, Bytes(55, 0xA5)));
}

TEST(SettingsRecord, FloatsStandAtTheirOffsets) {
    // 18.25 is 0x4032400000000000, 2 is 0x4000000000000000, -3.5 is 0xC00C000000000000.
    EXPECT_EQ(EncodeWith(&SettingsRecord::FajrAngle, 18.25), ZerosBut(60, {0x40, 0x32, 0x40}));
    EXPECT_EQ(EncodeWith(&SettingsRecord::AsrRatio, 2.0), ZerosBut(70, {0x40}));
    EXPECT_EQ(EncodeWith(&SettingsRecord::TimeZone, -3.5), ZerosBut(91, {0x0C, 0xC0}));
}

TEST(SettingsRecord, IntegersStandLittleEndianAtTheirOffsets) {
    constexpr std::int16_t kValue = 0x1234;
    const Bytes stored = {0x34, 0x12};
    EXPECT_EQ(EncodeWith(&SettingsRecord::DstEnabled, kValue), ZerosBut(71, stored));
    EXPECT_EQ(EncodeWith(&SettingsRecord::DstStart, kValue), ZerosBut(73, stored));
    EXPECT_EQ(EncodeWith(&SettingsRecord::DstEnd, kValue), ZerosBut(75, stored));
    EXPECT_EQ(EncodeWith(&SettingsRecord::AthanType, kValue), ZerosBut(77, stored));
    EXPECT_EQ(EncodeWith(&SettingsRecord::QiblaMethod, kValue), ZerosBut(79, stored));
    EXPECT_EQ(EncodeWith(&SettingsRecord::Language, kValue), ZerosBut(81, stored));
    EXPECT_EQ(EncodeWith(&SettingsRecord::CityIndex, kValue), ZerosBut(83, stored));
    EXPECT_EQ(EncodeWith(&SettingsRecord::AlarmTime, kValue), ZerosBut(93, stored));
    EXPECT_EQ(EncodeWith(&SettingsRecord::AlarmEnabled, kValue), ZerosBut(95, stored));
}

TEST(SettingsRecord, IntegersAreSigned) {
    EXPECT_EQ(EncodeWith(&SettingsRecord::CityIndex, std::int16_t{-32000}),
              ZerosBut(83, {0x00, 0x83}));
    EXPECT_EQ(DecodeSettings(ZerosBut(83, {0xFF, 0xFF})).CityIndex, -1);
}

TEST(SettingsRecord, AnyBytesAreARecordAndComeBackAsTheyWere) {
    std::mt19937 random(97);  // a fixed seed
    for (int run = 0; run < 5000; ++run) {
        SettingsBytes bytes;
        for (std::uint8_t& byte : bytes) {
            byte = static_cast<std::uint8_t>(random());
        }
        EXPECT_EQ(EncodeSettings(DecodeSettings(bytes)), bytes);
    }
}

TEST(SettingsRecord, FloatsThatAreNoNumbersKeepTheirBits) {
    const SettingsBytes signalling = ZerosBut(55, {0x01, 0x00, 0x00, 0x00, 0x00, 0x00, 0xF4, 0x7F});
    EXPECT_EQ(EncodeSettings(DecodeSettings(signalling)), signalling);
    const SettingsRecord infinite = DecodeSettings(ZerosBut(61, {0xF0, 0x7F}));
    EXPECT_EQ(infinite.FajrAngle, std::numeric_limits<double>::infinity());
}

TEST(SettingsRecord, AlarmGoesThroughTheDayInStepsOfFiveMinutes) {
    SettingsRecord record;
    EXPECT_EQ(AlarmMoment(record), 0.0);
    record.AlarmTime = 78;
    EXPECT_EQ(AlarmMoment(record), 6.5 / 24.0);
    record.AlarmTime = kAlarmStepsPerDay - 1;
    EXPECT_EQ(AlarmMoment(record), 1435.0 / 1440.0);
}

TEST(SettingsRecord, FreshProcessHasRecordsOfZerosAndNoIshaAngle) {
    Settings.Language = ActiveSettings.CityIndex = 4;
    IshaAngle = 18.0;
    ResetProgramState();
    EXPECT_EQ(Settings, SettingsRecord());
    EXPECT_EQ(ActiveSettings, SettingsRecord());
    EXPECT_EQ(IshaAngle, 0.0);
}

}  // namespace
}  // namespace horavex
