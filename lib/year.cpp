#include "lib/year.h"

#include "base/int16.h"
#include "config/rules_of_year.h"
#include "engine/angle.h"
#include "engine/current_year.h"
#include "engine/moments.h"
#include "lib/answers.h"
#include "lib/published_months.h"
#include "linux/zone_database.h"
#include "store/zone_year.h"

namespace horavex {

namespace {

constexpr int kLastYear = 9999;

/// A value within the range of an option. name: of the caller's field.
template <class Option, class Value>
Value Within(const Option& option, const char* name, Value value) {
    RequireRange(name, value, option.least, option.most);
    return value;
}

std::array<int, kPrayerCount> MinutesOf(const horavex_method& method) {
    std::array<int, kPrayerCount> minutes{};
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        const std::string name = "minutes[" + std::to_string(prayer) + "]";
        minutes[prayer] = Within(option::kOffsets[prayer], name.c_str(), method.minutes[prayer]);
    }
    return minutes;
}

YearOptions OptionsOf(const horavex_place& place, const horavex_method& method) {
    YearOptions options;
    options.zone = place.zone == nullptr ? "" : place.zone;
    RequireRange("nights", method.nights, HORAVEX_NIGHTS_NONE, HORAVEX_NIGHTS_NEAREST);
    options.highLatitude = static_cast<HighLatitudeRule>(method.nights);
    options.ishaInterval = Within(option::kIshaInterval, "isha_interval", method.isha_interval);
    options.ishaIntervalRamadan =
        Within(option::kIshaIntervalRamadan, "isha_interval_ramadan", method.isha_interval_ramadan);
    options.maghribAngle = Within(option::kMaghribAngle, "maghrib_angle", method.maghrib_angle);
    options.offsets = MinutesOf(method);
    RequireRange("hijri", method.hijri, HORAVEX_UMM_AL_QURA, HORAVEX_ARITHMETIC);
    options.hijri =
        method.hijri == HORAVEX_UMM_AL_QURA ? HijriSource::kUmmAlQura : HijriSource::kArithmetic;
    options.hijriAdjustment =
        Within(option::kHijriAdjustment, "hijri_adjustment", method.hijri_adjustment);
    RequireRange("sun", method.sun, HORAVEX_SUN_OF_THE_DAY, HORAVEX_SUN_OF_THE_TABLE);
    options.sunOfTheDay = method.sun == HORAVEX_SUN_OF_THE_DAY;
    return options;
}

/// The clock of a place without a zone of the database.
ZoneYear ClockByHand(const horavex_place& place) {
    RequireRange("utc_offset", place.utc_offset, -12.0, 12.0);
    if (place.dst_first_day == 0 && place.dst_last_day == 0) {
        return {.hours = place.utc_offset};
    }
    RequireRange("dst_first_day", place.dst_first_day, 1, static_cast<double>(kYearRows));
    RequireRange("dst_last_day", place.dst_last_day, 1, static_cast<double>(kYearRows));
    return {place.utc_offset, true, ToInt16(place.dst_first_day), ToInt16(place.dst_last_day)};
}

YearPlace PlaceOf(const horavex_place& place, const ZoneYear& clock) {
    RequireRange("latitude", place.latitude, -90.0, 90.0);
    RequireRange("longitude", place.longitude, -180.0, 180.0);
    return {DegToRad(place.latitude), -1.0 * DegToRad(place.longitude), clock.hours};
}

YearMethod MethodOf(const horavex_method& method, const ZoneYear& clock) {
    RequireRange("reserved", method.reserved, 0, 0);
    RequireRange("fajr_angle", method.fajr_angle, -90.0, 90.0);
    RequireRange("isha_angle", method.isha_angle, -90.0, 90.0);
    RequireRange("asr_shadow", method.asr_shadow, 1, 2);
    YearMethod taken = {method.fajr_angle, method.isha_angle,
                        static_cast<double>(method.asr_shadow)};
    taken.dstEnabled = clock.daylight ? 1 : 0;
    taken.dstStart = clock.dstStart;
    taken.dstEnd = clock.dstEnd;
    return taken;
}

[[noreturn]] void RefuseYear(const YearFailure& failure) {
    const int day = failure.row + 1;
    throw Refusal(HORAVEX_NO_TWILIGHT,
                  "without a rule for the nights there is no Fajr or Isha within its day on day " +
                      std::to_string(day) + " of the year",
                  day);
}

}  // namespace

horavex_year MakeYear(const horavex_place& place, const horavex_method& method, std::int32_t year) {
    RequireRange("year", year, 1, kLastYear);
    const YearOptions options = OptionsOf(place, method);
    const ZoneDatabase zones;
    const std::int16_t number = ToInt16(year);
    const ZoneYear clock = options.zone.empty()
                               ? ClockByHand(place)
                               : FindZoneYear(zones, options.zone, DateSerial(year, 1, 1));
    horavex_year made;
    made.basis.rules =
        RulesOfYear(options, number, {zones, [] { return std::optional(PublishedMonths()); }});
    const MomentRules& rules = made.basis.rules.moments;
    made.basis.inputs = {number, PlaceOf(place, clock), MethodUnder(rules, MethodOf(method, clock)),
                         rules.start};
    const YearTable table = CalculateYear(made.basis.inputs);
    if (table.failure) {
        RefuseYear(*table.failure);
    }
    made.times = table.times;
    return made;
}

std::size_t LastRow(const horavex_year& year) {
    return 364U + static_cast<std::size_t>(LeapFlagOf(year.basis.inputs.year));
}

Date NewYear(const horavex_year& year) {
    return DateSerial(year.basis.inputs.year, 1, 1);
}

}  // namespace horavex

using namespace horavex;

horavex_status horavex_year_make(const horavex_place* place, const horavex_method* method,
                                 std::int32_t year, horavex_year** made, horavex_error* error) {
    return Answer(error, [&] {
        const horavex_place takenPlace = Taken("place", place);
        const horavex_method takenMethod = Taken("method", method);
        Require(made != nullptr, "made is NULL");
        *made = new horavex_year(MakeYear(takenPlace, takenMethod, year));
    });
}

void horavex_year_free(horavex_year* year) {
    delete year;
}

std::int32_t horavex_year_days(const horavex_year* year) {
    return year == nullptr ? 0 : static_cast<std::int32_t>(LastRow(*year)) + 1;
}
