#include "engine/year_table.h"

#include <cmath>

#include "base/int16.h"
#include "base/program_state.h"
#include "engine/current_year.h"
#include "engine/limit_message.h"
#include "engine/moments.h"
#include "engine/ruled_year.h"
#include "store/settings_record.h"

namespace horavex {

YearTimes Times{};
std::int16_t CalcFailed = 0;
std::optional<YearFailure> LastYearFailure;

namespace {

const ProgramStateReset reset([] {
    Times = {};
    CalcFailed = 0;
    LastYearFailure.reset();
});

/// The message comes first: what runs while it is up still finds the flag clear.
void TellFailure(const std::optional<YearFailure>& failure) {
    if (failure) {
        ShowLimitMessage(failure->message);
        LastYearFailure = failure;
        CalcFailed = -1;
    }
}

}  // namespace

PrayerRow TimesOfRow(std::size_t row) {
    return RowOf(Times, row);
}

YearInputs PresentInputs() {
    return {CurrentYear, PresentPlace(),
            MethodUnder(RuledYear.rules.moments, MethodOf(Settings, IshaAngle)),
            RuledYear.rules.moments.start};
}

void ComputeYearTimes(std::int16_t firstDay, std::int16_t endDay, const ProgressReport& report) {
    LastYearFailure.reset();
    YearInputs inputs = PresentInputs();
    // Whatever comes in with a report may have changed them.
    const ProgressReport reportAndLook = [&](double percent) {
        report(percent);
        inputs = PresentInputs();
    };
    TellFailure(FillYear(CurrentYearConstants, inputs, {firstDay, endDay},
                         report ? reportAndLook : ProgressReport(), Times));
}

bool IsDaylightDay(Date date, const SettingsRecord& settings) {
    const Date newYear = DateSerial(CivilFromDate(date).year, 1, 1);
    return HasDaylightHour(MethodOf(settings, 0.0),
                           static_cast<std::size_t>(std::floor(date) - newYear));
}

bool IsDaylightDay(Date date) {
    return IsDaylightDay(date, Settings);
}

PrayerRow ComputeTodayTimes(const YearInputs& inputs, Date today) {
    LastYearFailure.reset();
    const DayTimes day =
        CalculateDay(inputs, TruncateToInt16(today - DateSerial(inputs.year, 1, 1)));
    TellFailure(day.failure);
    return day.times;
}

}  // namespace horavex
