#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace horavex {

/// What an alert is for: a prayer, by its index, an athan that the user asked for or the daily
/// alarm. Stands in front of Prayer, whose names g++ would otherwise see hidden.
enum class Alert : std::int16_t {
    kAthanNow = -1,
    kFajr,
    kShurooq,  // rings nothing: sunrise has no athan
    kZuhr,
    kAsr,
    kMaghrib,
    kIsha,
    kDailyAlarm = 7,
};

/// The six times of a day by index.
enum Prayer : std::size_t { kFajr, kShurooq, kZuhr, kAsr, kMaghrib, kIsha };
inline constexpr std::size_t kPrayerCount = 6;

/// A text for each of the six.
using PrayerTexts = std::array<const char*, kPrayerCount>;

/// The names for machines: keys of language packs and of the files that are written. Windows have
/// them as captions until a pack's replace them.
inline constexpr PrayerTexts kPrayerKeys = {"Fajr", "Shurooq", "Zuhr", "Asr", "Maghrib", "Isha"};

/// The English names that the settings window and the export show whatever the language, so that
/// pages in different languages can be compared. "Thuhr" and "Ishaa" are meant: they set these
/// names apart from the translated ones above them.
inline constexpr PrayerTexts prayerNames = {"Fajr", "Shurooq", "Thuhr", "Asr", "Maghrib", "Ishaa"};

/// The day browser's captions until a pack's replace them. Its window is defined with "Shurook".
inline constexpr PrayerTexts kDayBrowserNames = {"Fajr", "Shurook", "Zuhr",
                                                 "Asr",  "Maghrib", "Isha"};

/// What the times are called in everyday English.
inline constexpr PrayerTexts kEverydayNames = {"Dawn",      "Sunrise", "Noon",
                                               "Afternoon", "Sunset",  "Night"};

}  // namespace horavex
