#include "config/adjusted_day.h"

#include "base/int16.h"
#include "engine/moments.h"
#include "engine/year_table.h"
#include "store/location_record.h"
#include "store/settings_record.h"

namespace horavex {

namespace {

YearInputs InputsOf(const Adjustments& adjustments, std::int16_t year, const MomentRules& rules) {
    YearMethod method = MethodOf(ActiveSettings, adjustments.ishaAngle);
    method.fajrAngle = adjustments.fajrAngle;
    const YearPlace place = PlaceOf(ActiveLocation.City, ActiveSettings.TimeZone);
    return {year, place, MethodUnder(rules, method), rules.start};
}

HijriDate HijriOf(const YearRules& rules, Date day, std::size_t row) {
    return rules.hijri.empty() ? HijriFromDate(day) : rules.hijri.at(row);
}

}  // namespace

AdjustedDay DayUnder(const Adjustments& adjustments, Date day) {
    const std::int16_t year = ToInt16(CivilFromDate(day).year);
    const auto row = static_cast<std::size_t>(day - DateSerial(year, 1, 1));
    YearOptions options = adjustments.options;
    options.zone = ReadYearOptions(ActiveSettings.CityIndex).zone;
    const YearRules rules = PossibleRulesOfYear(options, year);
    const YearInputs inputs = InputsOf(adjustments, year, rules.moments);
    const YearTable table = CalculateYear(inputs);
    AdjustedDay adjusted = {!table.failure, {}, HijriOf(rules, day, row)};
    if (adjusted.isCalculated) {
        adjusted.moments = MomentsOf({inputs, table.times, rules.moments}, row);
    }
    return adjusted;
}

}  // namespace horavex
