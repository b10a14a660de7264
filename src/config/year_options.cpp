#include "config/year_options.h"

#include "config/adjustments.h"
#include "config/city_clock.h"
#include "config/rules_of_year.h"
#include "config/unusable_file.h"
#include "platform/platform.h"
#include "store/around_options.h"
#include "store/location_record.h"
#include "store/save_change.h"
#include "store/settings_record.h"

namespace horavex {

namespace {

std::string ChosenZone(std::int16_t cityIndex) {
    return ReadOption(option::kAutomaticZone) == 0
               ? std::string()
               : ReadOrTell([&] { return ZoneNameOf(cityIndex); });
}

/// The published months; none where their file cannot be used.
std::optional<UmmAlQura> PublishedMonths() {
    return ReadOrTell([] { return std::optional<UmmAlQura>(UmmAlQura()); });
}

}  // namespace

YearOptions ReadRuleOptions() {
    YearOptions options;
    options.highLatitude = ReadOption(option::kHighLatitudeRule);
    options.ishaInterval = ReadOption(option::kIshaInterval);
    options.ishaIntervalRamadan = ReadOption(option::kIshaIntervalRamadan);
    options.maghribAngle = ReadOption(option::kMaghribAngle);
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        options.offsets[prayer] = ReadOption(option::kOffsets[prayer]);
    }
    options.hijri = ReadOption(option::kHijriCalendar);
    options.hijriAdjustment = ReadOption(option::kHijriAdjustment);
    options.sunOfTheDay = ReadOption(option::kSunOfTheDay) == 1;
    options.aroundTheDay = ReadOption(option::kAroundTheDay) == 1;
    return options;
}

YearOptions ReadYearOptions(std::int16_t cityIndex) {
    YearOptions options = ReadRuleOptions();
    options.zone = ChosenZone(cityIndex);
    return options;
}

void SaveYearOptions(const YearOptions& options) {
    const YearOptions none;
    SaveChange(option::kHighLatitudeRule, options.highLatitude, none.highLatitude);
    SaveChange(option::kIshaInterval, options.ishaInterval, none.ishaInterval);
    SaveChange(option::kIshaIntervalRamadan, options.ishaIntervalRamadan, none.ishaIntervalRamadan);
    SaveChange(option::kMaghribAngle, options.maghribAngle, none.maghribAngle);
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        SaveChange(option::kOffsets[prayer], options.offsets[prayer], none.offsets[prayer]);
    }
    SaveChange(option::kHijriCalendar, options.hijri, none.hijri);
    SaveChange(option::kHijriAdjustment, options.hijriAdjustment, none.hijriAdjustment);
    SaveChange(option::kSunOfTheDay, options.sunOfTheDay ? 1 : 0, 0);
    SaveChange(option::kAroundTheDay, options.aroundTheDay ? 1 : 0, 0);
}

void SaveZoneOption(int value) {
    SaveChange(option::kAutomaticZone, value, 0);
}

YearRules RulesOfYear(const YearOptions& options, std::int16_t year) {
    return RulesOfYear(options, year, {Ports().zoneRules, PublishedMonths});
}

YearRules PossibleRulesOfYear(YearOptions options, std::int16_t year) {
    try {
        return RulesOfYear(options, year);
    } catch (const UnknownZoneFault&) {
        options.zone.clear();
        return RulesOfYear(options, year);
    }
}

YearRules StoredRulesOfYear(std::int16_t year) {
    const YearOptions options = ReadYearOptions(Settings.CityIndex);
    YearRules rules = PossibleRulesOfYear(options, year);
    const Adjustments adjustments = {Settings.FajrAngle, IshaAngle, options};
    const Authority* method = MethodOf(adjustments, Location.Country);
    rules.method = method == nullptr ? "" : method->name;
    return rules;
}

}  // namespace horavex
