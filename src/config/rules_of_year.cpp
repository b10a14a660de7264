#include "config/rules_of_year.h"

#include <algorithm>

#include "engine/current_year.h"

namespace horavex {

namespace {

constexpr int kRamadan = 9;

/// The Hijri dates of a year's days, by row. published: none for the arithmetic calendar.
std::vector<HijriDate> HijriDays(const std::optional<UmmAlQura>& published, int adjustment,
                                 std::int16_t year) {
    const Date newYear = DateSerial(year, 1, 1) + adjustment;
    std::vector<HijriDate> days;
    for (int row = 0; row < 365 + LeapFlagOf(year); ++row) {
        const Date date = newYear + row;
        days.push_back(published ? HijriOf(*published, date) : HijriFromDate(date));
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
std::vector<ZoneSpan> SpansOfYear(const ZoneRules& rules, const std::string& zone,
                                  std::int16_t year) {
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

void TakeAuthority(const Authority& authority, YearOptions& options) {
    options.ishaInterval = authority.ishaInterval;
    options.ishaIntervalRamadan = authority.ishaIntervalRamadan;
    options.maghribAngle = authority.maghribAngle;
    options.offsets = authority.margins;
}

YearRules RulesOfYear(const YearOptions& options, std::int16_t year, const RuleSources& sources) {
    YearRules rules;
    rules.moments.start = options.sunOfTheDay ? YearStart::kCalendar : YearStart::kRounded;
    rules.moments.highLatitude = options.highLatitude;
    rules.moments.ishaInterval = options.ishaInterval;
    rules.moments.ishaIntervalRamadan = options.ishaIntervalRamadan;
    rules.moments.maghribAngle = options.maghribAngle;
    rules.moments.offsets = options.offsets;
    if (!options.zone.empty()) {
        rules.moments.zone = SpansOfYear(sources.zones, options.zone, year);
        rules.zoneName = options.zone;
    }
    if (options.ishaIntervalRamadan > 0 && options.ishaIntervalRamadan != options.ishaInterval) {
        rules.moments.ramadan =
            RamadanOf(HijriDays(sources.published(), options.hijriAdjustment, year));
    }
    if (options.hijri != HijriSource::kArithmetic || options.hijriAdjustment != 0) {
        const bool isPublished = options.hijri == HijriSource::kUmmAlQura;
        rules.hijri = HijriDays(isPublished ? sources.published() : std::nullopt,
                                options.hijriAdjustment, year);
    }
    return rules;
}

}  // namespace horavex
