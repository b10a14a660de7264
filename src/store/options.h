#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace horavex {

// What goes beyond the base behaviour is an option: a text value of its own under kOptionsKey. The
// rows in the namespace option are the table of them all: name, least, most, default (the base
// behaviour), and what a value changes. An absent value, one outside its range and one that is no
// value of its type give the default, everywhere.

inline constexpr const char* kOptionsKey = "\\Software\\Horavex\\Options";

/// A whole number, in the general form.
struct WholeOption {
    const char* name;
    int least;
    int most;
    int base;
};

/// A number of degrees with fractions, in the general form.
struct DegreesOption {
    const char* name;
    double least;
    double most;
    double base;
};

/// Any text; empty by default.
struct TextOption {
    const char* name;
};

/// One of some words, whose letter case does not matter; the first is the default. Choice
/// enumerates them from 0.
template <typename Choice, std::size_t count>
struct ChoiceOption {
    const char* name;
    std::array<const char*, count> words;
};

/// What becomes of Fajr and Isha in nights in which the sun does not sink to the angle.
enum class HighLatitudeRule : std::size_t { kNone, kMiddle, kSeventh, kAngle, kNearest };

/// Where the Hijri dates of the face, of tables and of exports come from.
enum class HijriSource : std::size_t { kArithmetic, kUmmAlQura };

namespace option {

/// 1: zone and daylight saving follow the city's own zone of the zone database.
inline constexpr WholeOption kAutomaticZone = {"Automatic Zone", 0, 1, 0};

/// The name of the zone, where it is not the city's.
inline constexpr TextOption kZoneName = {"Zone Name"};

inline constexpr ChoiceOption<HighLatitudeRule, 5> kHighLatitudeRule = {
    "High Latitude Rule", {"none", "middle", "seventh", "angle", "nearest"}};

/// Minutes: Isha so long after Maghrib, in general and in Ramadan; 0 leaves it to its angle.
inline constexpr WholeOption kIshaInterval = {"Isha Interval", 0, 180, 0};
inline constexpr WholeOption kIshaIntervalRamadan = {"Isha Interval Ramadan", 0, 180, 0};

/// Degrees of depression: Maghrib by this angle; 0 leaves it at sunset.
inline constexpr DegreesOption kMaghribAngle = {"Maghrib Angle", 0.0, 10.0, 0.0};

/// Minutes added to a time, by prayer index.
inline constexpr std::array<WholeOption, 6> kOffsets = {{{"Offset Fajr", -60, 60, 0},
                                                         {"Offset Shurooq", -60, 60, 0},
                                                         {"Offset Zuhr", -60, 60, 0},
                                                         {"Offset Asr", -60, 60, 0},
                                                         {"Offset Maghrib", -60, 60, 0},
                                                         {"Offset Isha", -60, 60, 0}}};

inline constexpr ChoiceOption<HijriSource, 2> kHijriCalendar = {"Hijri Calendar",
                                                                {"arithmetic", "umm-al-qura"}};

/// Days added to the Hijri date.
inline constexpr WholeOption kHijriAdjustment = {"Hijri Adjustment", -2, 2, 0};

/// 1: every year has the sun of its own days; without it some have that of the next day.
inline constexpr WholeOption kSunOfTheDay = {"Sun Of The Day", 0, 1, 0};

/// 0: the daily alarm neither shows nor beeps.
inline constexpr WholeOption kAlarm = {"Alarm", 0, 1, 1};

}  // namespace option

/// The value in force.
int ReadOption(const WholeOption& option);
double ReadOption(const DegreesOption& option);
std::string ReadOption(const TextOption& option);

/// Stores a value, the default too, which then stands in front of a machine-wide one. Returns 0 or
/// the store's error code, with which nothing has changed. Throws BoundsFault, before anything is
/// written, for a value outside the range.
std::int32_t SaveOption(const WholeOption& option, int value);
std::int32_t SaveOption(const DegreesOption& option, double value);
std::int32_t SaveOption(const TextOption& option, const std::string& value);

/// The place of a stored word among those of an option; 0 for any other.
std::size_t ReadOptionWord(const char* name, const char* const* words, std::size_t count);

template <typename Choice, std::size_t count>
Choice ReadOption(const ChoiceOption<Choice, count>& option) {
    return static_cast<Choice>(ReadOptionWord(option.name, option.words.data(), count));
}

template <typename Choice, std::size_t count>
std::int32_t SaveOption(const ChoiceOption<Choice, count>& option, Choice value) {
    return SaveOption(TextOption{option.name}, option.words.at(static_cast<std::size_t>(value)));
}

}  // namespace horavex
