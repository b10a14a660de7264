#include "engine/moments.h"

#include <cmath>

#include "base/rounding.h"
#include "engine/around_day.h"
#include "engine/current_year.h"
#include "engine/solar_event.h"
#include "engine/zone_spans.h"

namespace horavex {

namespace {

constexpr double kMinutesPerHour = 60.0;
constexpr double kDuhaDelay = 0.25;  // hours

/// Puts an hour of the record's standard time on the clock of the city's own zone. The record may
/// hold an offset that is a whole day off.
void PutInZone(const std::vector<ZoneSpan>& zone, Date day, double recordZone, Moment& moment) {
    const double usual = SpanAt(zone, day + (12.0 - recordZone) / 24.0).hours;
    const double standard = recordZone + 24.0 * std::round((usual - recordZone) / 24.0);
    const double universal = moment.hours - standard;
    moment.offset = SpanAt(zone, day + universal / 24.0).hours;
    moment.hours = universal + moment.offset;
}

int DayShiftOf(double hours) {
    return NearestInt(std::floor(RoundHalfEven(hours * 3600.0) / kSecondsPerDay));
}

/// From Maghrib to the next Fajr.
struct Night {
    double hours;
    bool endsByRule;
};

/// Makes the moments of one day.
class DayMaker {
public:
    DayMaker(const YearSource& year, std::size_t row)
        : year_(year), rules_(year.rules), row_(row), sun_(SunOfDay(year, row)) {}

    DayMoments Make() const {
        DayMoments day = Standard();
        for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
            PutOnClock(day[prayer], rules_.offsets[prayer]);
        }
        KeepOrder(day);
        return day;
    }

    /// night: the one behind the day.
    AroundMoments Around(const Night& night, int imsakMinutes) const {
        const DayMoments day = Standard();
        AroundMoments around = {Behind(day, kFajr, -imsakMinutes / kMinutesPerHour),
                                Behind(day, kShurooq, kDuhaDelay),
                                Behind(day, kMaghrib, night.hours / 2.0),
                                Behind(day, kMaghrib, night.hours * 2.0 / 3.0)};
        if (night.endsByRule) {
            around[kMiddleOfNight].by = around[kLastThird].by = MomentBy::kRule;
        }
        for (Moment& moment : around) {
            PutOnClock(moment, 0);
        }
        return around;
    }

    /// With the minutes that the rules add, of the record's standard time.
    Moment StandardMoment(Prayer prayer) const {
        Moment moment = Standard()[prayer];
        moment.hours += rules_.offsets[prayer] / kMinutesPerHour;
        return moment;
    }

private:
    /// Of the record's standard time, without the minutes that the rules add.
    DayMoments Standard() const {
        DayMoments day{};
        day[kShurooq] = FromSun(kShurooq);
        day[kZuhr] = {sun_.hours[kZuhr]};
        day[kAsr] = FromSun(kAsr);
        day[kMaghrib] = Maghrib();
        day[kFajr] = FajrOf(year_, row_);
        day[kIsha] = Isha(day[kMaghrib]);
        return day;
    }

    Moment Behind(const DayMoments& day, Prayer prayer, double hours) const {
        const Moment& start = day[prayer];
        const bool isByRule = start.by == MomentBy::kRule;
        return {start.hours + rules_.offsets[prayer] / kMinutesPerHour + hours,
                isByRule ? MomentBy::kRule : MomentBy::kInterval};
    }

    Moment FromSun(Prayer prayer) const {
        return {sun_.hours[prayer], sun_.borrowed ? MomentBy::kRule : MomentBy::kSun};
    }

    Moment Maghrib() const {
        if (rules_.maghribAngle == 0.0) {
            return FromSun(kMaghrib);
        }
        const Moment sunset = FromSun(kMaghrib);
        const Moment moment = MaghribByAngle(year_, row_);
        const bool isBehind = IsEvent(moment.hours) && !(moment.hours < sunset.hours);
        return isBehind ? moment : sunset;
    }

    /// Twilights of an earlier day, or what is added to a time, may lie beyond the sun's own day.
    void KeepOrder(DayMoments& day) const {
        if (rules_.highLatitude == HighLatitudeRule::kNone) {
            return;
        }
        if (IsEvent(day[kFajr].hours) && day[kFajr].hours > day[kShurooq].hours) {
            day[kFajr] = day[kShurooq];
            day[kFajr].by = MomentBy::kRule;
        }
        if (day[kIsha].hours < day[kMaghrib].hours && IsEvent(day[kMaghrib].hours)) {
            day[kIsha] = day[kMaghrib];
            day[kIsha].by = MomentBy::kRule;
        }
    }

    int IshaMinutes() const {
        const bool isLonger = rules_.ramadan[row_] && rules_.ishaIntervalRamadan > 0;
        return isLonger ? rules_.ishaIntervalRamadan : rules_.ishaInterval;
    }

    Moment Isha(const Moment& maghrib) const {
        const int minutes = IshaMinutes();
        if (minutes == 0) {
            return IshaOf(year_, row_);
        }
        const double hours = maghrib.hours + minutes / kMinutesPerHour;
        if (rules_.highLatitude == HighLatitudeRule::kNone) {
            return {hours, MomentBy::kInterval};
        }
        const double middle = MiddleOfNight(year_, row_);
        return hours <= middle ? Moment{hours, MomentBy::kInterval}
                               : Moment{middle, MomentBy::kRule};
    }

    void PutOnClock(Moment& moment, int minutes) const {
        if (!IsEvent(moment.hours)) {
            moment.hours = NoEvent;
            return;
        }
        const YearInputs& inputs = year_.inputs;
        if (!rules_.zone.empty()) {
            const Date day = DateSerial(inputs.year, 1, 1) + static_cast<double>(row_);
            PutInZone(rules_.zone, day, inputs.place.timeZone, moment);
        } else if (HasDaylightHour(inputs.method, row_)) {
            moment.hours += 1.0;
        }
        moment.hours += minutes / kMinutesPerHour;
        moment.dayShift = DayShiftOf(moment.hours);
    }

    const YearSource& year_;
    const MomentRules& rules_;
    std::size_t row_;
    SunDay sun_;
};

}  // namespace

YearMethod MethodUnder(const MomentRules& rules, YearMethod method) {
    method.needsFajr = rules.highLatitude == HighLatitudeRule::kNone;
    method.needsIsha = method.needsFajr && rules.ishaInterval == 0;
    return method;
}

DayMoments TableMoments(const PrayerRow& hours) {
    DayMoments moments;
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        moments[prayer].hours = hours[prayer];
    }
    return moments;
}

DayMoments MomentsOf(const YearSource& year, std::size_t row) {
    if (year.rules == MomentRules{}) {
        return TableMoments(RowOf(year.times, row));
    }
    return DayMaker(year, row).Make();
}

std::vector<DayMoments> MomentsOfRows(const YearSource& year, std::size_t count) {
    const bool isAsTable = year.rules == MomentRules{};
    std::vector<DayMoments> moments(count);
    for (std::size_t row = 0; row < count; ++row) {
        moments[row] =
            isAsTable ? TableMoments(RowOf(year.times, row)) : DayMaker(year, row).Make();
    }
    return moments;
}

AroundMoments AroundOf(const YearSource& year, std::size_t row, int imsakMinutes) {
    const std::size_t last = 364U + static_cast<std::size_t>(LeapFlagOf(year.inputs.year));
    const std::size_t evening = row < last ? row : row - 1;
    const Moment fajr = DayMaker(year, evening + 1).StandardMoment(kFajr);
    const Moment maghrib = DayMaker(year, evening).StandardMoment(kMaghrib);
    const bool isNight = IsEvent(fajr.hours) && IsEvent(maghrib.hours);
    const Night night = {isNight ? fajr.hours + 24.0 - maghrib.hours : NoEvent,
                         fajr.by == MomentBy::kRule};
    return DayMaker(year, row).Around(night, imsakMinutes);
}

}  // namespace horavex
