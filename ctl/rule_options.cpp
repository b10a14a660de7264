#include "ctl/rule_options.h"

#include <algorithm>

#include "base/text.h"
#include "ctl/command.h"
#include "ctl/number_range.h"

namespace horavex {

namespace {

template <typename Choice, std::size_t count>
std::vector<std::string> WordsOf(const ChoiceOption<Choice, count>& option) {
    return {option.words.begin(), option.words.end()};
}

/// word: one of the option's.
template <typename Choice, std::size_t count>
Choice ChoiceOf(const ChoiceOption<Choice, count>& option, const std::string& word) {
    const auto found = std::ranges::find(option.words, word);
    return static_cast<Choice>(found - option.words.begin());
}

[[noreturn]] void RefuseOffset(const std::string& text) {
    RefuseUsage("--offset wants minutes from -60 to 60 such as fajr=2,isha=-3, not \"" + text +
                "\"");
}

std::size_t PrayerOfName(const std::string& text, const std::string& name) {
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        if (EqualsIgnoringCase(kPrayerKeys[prayer], name)) {
            return prayer;
        }
    }
    RefuseOffset(text);
}

void TakeOffset(const std::string& text, std::array<int, kPrayerCount>& offsets) {
    const auto parts = Split(text, '=');
    if (parts.size() != 2) {
        RefuseOffset(text);
    }
    const std::size_t prayer = PrayerOfName(text, parts[0]);
    const WholeOption& range = option::kOffsets[prayer];
    int minutes = 0;
    if (!CLI::detail::lexical_cast(parts[1], minutes) || minutes < range.least ||
        minutes > range.most) {
        RefuseOffset(text);
    }
    offsets[prayer] = minutes;
}

}  // namespace

void AddTimeZoneOption(CLI::App& command, RuleOptions& options) {
    auto* zone = command.add_option("--time-zone", options.timeZone,
                                    "A zone with its daylight saving, such as Europe/London");
    for (const char* other : {"--zone", "--dst-start"}) {
        if (auto* hours = command.get_option_no_throw(other)) {
            zone->excludes(hours);
        }
    }
}

void AddMomentOptions(CLI::App& command, RuleOptions& options) {
    const WholeOption& interval = option::kIshaInterval;
    const DegreesOption& angle = option::kMaghribAngle;
    command
        .add_option("--high-latitude", options.highLatitude,
                    "Fajr and Isha where the sun does not sink to the angle: none, middle, "
                    "seventh, angle or nearest")
        ->check(CLI::IsMember(WordsOf(option::kHighLatitudeRule)));
    auto* isha = command
                     .add_option("--isha-interval", options.ishaInterval,
                                 "Minutes from Maghrib to Isha, in place of its angle")
                     ->check(CLI::Range(interval.least, interval.most));
    isha->excludes("--isha");
    command
        .add_option("--maghrib-angle", options.maghribAngle,
                    "Maghrib depression angle in degrees; 0 for sunset")
        ->check(NumberFrom(angle.least, angle.most));
    command.add_option("--offset", options.offsets,
                       "Minutes added to times, such as fajr=2,isha=-3");
}

void AddHijriOption(CLI::App& command, RuleOptions& options) {
    command.add_option("--hijri", options.hijri, "The Hijri calendar: arithmetic or umm-al-qura")
        ->check(CLI::IsMember(WordsOf(option::kHijriCalendar)));
}

void TakeRules(const RuleOptions& options, YearOptions& year) {
    if (options.highLatitude) {
        year.highLatitude = ChoiceOf(option::kHighLatitudeRule, *options.highLatitude);
    }
    if (options.ishaInterval) {  // in Ramadan, too
        year.ishaInterval = year.ishaIntervalRamadan = *options.ishaInterval;
    }
    year.maghribAngle = options.maghribAngle.value_or(year.maghribAngle);
    for (const std::string& offset :
         options.offsets ? Split(*options.offsets, ',') : std::vector<std::string>()) {
        TakeOffset(offset, year.offsets);
    }
    if (options.hijri) {
        year.hijri = ChoiceOf(option::kHijriCalendar, *options.hijri);
    }
}

}  // namespace horavex
