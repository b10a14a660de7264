#include "config/year_options.h"

#include <algorithm>

#include "calendar/umm_al_qura.h"
#include "config/adjustments.h"
#include "config/city_clock.h"
#include "config/unusable_file.h"
#include "engine/current_year.h"
#include "platform/platform.h"
#include "store/around_options.h"
#include "store/location_record.h"
#include "store/save_change.h"
#include "store/settings_record.h"

namespace horavex {

namespace {

constexpr int kRamadan = 9;

std::string ChosenZone(std::int16_t cityIndex) {
    return ReadOption(option::kAutomaticZone) == 0
               ? std::string()
               : ReadOrTell([&] { return ZoneNameOf(cityIndex); });
}

/// The published months; none where their file cannot be used.
std::optional<UmmAlQura> PublishedMonths() {
    return ReadOrTell([] { return std::optional<UmmAlQura>(UmmAlQura()); });
}

/// The Hijri dates of a year's days, by row.
std::vector<HijriDate> HijriDays(HijriSource source, int adjustment, std::int16_t year) {
    const Date newYear = DateSerial(year, 1, 1) + adjustment;
    const std::optional<UmmAlQura> published =
        source == HijriSource::kUmmAlQura ? PublishedMonths() : std::nullopt;
    std::vector<HijriDate> days;
    for (int row = 0; row < 365 + LeapFlagOf(year); ++row) {
        const Date date = newYear + row;
        const auto hijri = published ? published->HijriOf(date) : std::nullopt;
        days.push_back(hijri.value_or(HijriFromDate(date)));
    }
    return days;
}

std::bitset<kYearRows> RamadanOf(const std::vector<HijriDate>& days) {
    std::bitset<kYearRows> ramadan;
    for (std::size_t row = 0; row < days.size(); ++row) {
        ramadan[row] = days[row].month == kRamadan;
    }
    return ramadan;
}

Date UniversalDate(UtcSeconds moment) {
    return DateSerial(1970, 1, 1) + static_cast<double>(moment) / kSecondsPerDay;
}

/// Some zones call their winter the exception. What is ahead is daylight saving everywhere, as long
/// as the zone's data mark one of both.
void NameDaylight(std::vector<ZoneSpan>& spans) {
    const bool marked = std::ranges::any_of(spans, &ZoneSpan::daylight);
    const double lowest = std::ranges::min(spans, {}, &ZoneSpan::hours).hours;
    for (ZoneSpan& span : spans) {
        span.daylight = marked && span.hours > lowest;
    }
}

/// The zone's clock over the year and the days beside it.
std::vector<ZoneSpan> SpansOfYear(const std::string& zone, std::int16_t year) {
    const ZoneRules& rules = Ports().zoneRules;
    const UtcSeconds from = MomentOf(rules, zone, DateSerial(year, 1, 1) - 2.0);
    const UtcSeconds end = MomentOf(rules, zone, DateSerial(year + 1, 1, 1) + 2.0);
    std::vector<ZoneSpan> spans;
    const auto add = [&](UtcSeconds moment, const ZoneOffset& offset) {
        spans.push_back({UniversalDate(moment), offset.seconds / 3600.0, offset.daylight});
    };
    add(from, rules.OffsetAt(zone, from));
    for (const ZoneChange& change : rules.ChangesBetween(zone, from, end)) {
        add(change.moment, change.after);
    }
    NameDaylight(spans);
    return spans;
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

void TakeAuthority(const Authority& authority, YearOptions& options) {
    options.ishaInterval = authority.ishaInterval;
    options.ishaIntervalRamadan = authority.ishaIntervalRamadan;
    options.maghribAngle = authority.maghribAngle;
    options.offsets = authority.margins;
}

YearRules RulesOfYear(const YearOptions& options, std::int16_t year) {
    YearRules rules;
    rules.moments.start = options.sunOfTheDay ? YearStart::kCalendar : YearStart::kRounded;
    rules.moments.highLatitude = options.highLatitude;
    rules.moments.ishaInterval = options.ishaInterval;
    rules.moments.ishaIntervalRamadan = options.ishaIntervalRamadan;
    rules.moments.maghribAngle = options.maghribAngle;
    rules.moments.offsets = options.offsets;
    if (!options.zone.empty()) {
        rules.moments.zone = SpansOfYear(options.zone, year);
        rules.zoneName = options.zone;
    }
    if (options.ishaIntervalRamadan > 0 && options.ishaIntervalRamadan != options.ishaInterval) {
        rules.moments.ramadan =
            RamadanOf(HijriDays(HijriSource::kUmmAlQura, options.hijriAdjustment, year));
    }
    if (options.hijri != HijriSource::kArithmetic || options.hijriAdjustment != 0) {
        rules.hijri = HijriDays(options.hijri, options.hijriAdjustment, year);
    }
    return rules;
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
