#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "base/bytes.h"

namespace horavex {

/// The user's method settings. On disk the fields follow each other without padding, in this
/// order, little-endian: kSettingsRecordSize bytes. Whatever a file holds is used: no field is
/// checked for plausibility.
struct SettingsRecord {
    /// Carried and copied with the record; nothing reads or sets it.
    std::array<std::uint8_t, 55> Reserved{};
    double FajrAngle = 0.0;         // degrees of depression, in quarters
    double AsrRatio = 0.0;          // shadow factor: 1 shows as "1:1", 2 as "2:1"
    std::int16_t DstEnabled = 0;    // 1 when daylight saving applies
    std::int16_t DstStart = 0;      // first day of daylight saving, 1-based day of the year
    std::int16_t DstEnd = 0;        // last day of the same
    std::int16_t AthanType = 0;     // kMuteAthan, kBuzzerAthan or kSoundAthan
    std::int16_t QiblaMethod = 0;   // 1 or 2, which give the same bearing
    std::int16_t Language = 0;      // column of the text table, 1 to 6; 0 is read as 1
    std::int16_t CityIndex = 0;     // -32000 upward
    double TimeZone = 0.0;          // hours east of Greenwich, -12 to 12
    std::int16_t AlarmTime = 0;     // steps from midnight, 0 to kAlarmStepsPerDay - 1
    std::int16_t AlarmEnabled = 0;  // 1 when the alarm is on

    bool operator==(const SettingsRecord&) const = default;
};

inline constexpr std::size_t kSettingsRecordSize = 97;

/// What an athan does; the buzzer is as silent as mute.
inline constexpr std::int16_t kMuteAthan = 1;
inline constexpr std::int16_t kBuzzerAthan = 2;
inline constexpr std::int16_t kSoundAthan = 3;

/// The alarm goes in steps of five minutes.
inline constexpr std::int16_t kAlarmStepsPerDay = 288;

/// When the alarm is due, as a fraction of a day.
constexpr double AlarmMoment(const SettingsRecord& settings) {
    return static_cast<double>(settings.AlarmTime) / kAlarmStepsPerDay;
}

using SettingsBytes = std::array<std::uint8_t, kSettingsRecordSize>;
SettingsBytes EncodeSettings(const SettingsRecord& record);
SettingsRecord DecodeSettings(const SettingsBytes& bytes);

/// The working copy, which the settings window edits and the engine reads.
extern SettingsRecord Settings;

/// The copy that was last accepted.
extern SettingsRecord ActiveSettings;

/// Isha depression angle, degrees. It came after the record was fixed and stands beside it,
/// kept as a registry value.
extern double IshaAngle;

}  // namespace horavex
