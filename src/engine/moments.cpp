#include "engine/moments.h"

#include <cmath>

#include "base/rounding.h"
#include "engine/ruled_year.h"
#include "engine/solar_event.h"
#include "engine/year_table.h"
#include "engine/zone_spans.h"

namespace horavex {

namespace {

constexpr double kMinutesPerHour = 60.0;

/// An hour of the record's standard time on the clock of the city's own zone. The record may hold
/// an offset that is a whole day off.
double InZone(const std::vector<ZoneSpan>& zone, Date day, double hours, double recordZone) {
    const double usual = SpanAt(zone, day + (12.0 - recordZone) / 24.0).hours;
    const double standard = recordZone + 24.0 * std::round((usual - recordZone) / 24.0);
    const double universal = hours - standard;
    return universal + SpanAt(zone, day + universal / 24.0).hours;
}

int DayShiftOf(double hours) {
    return NearestInt(std::floor(RoundHalfEven(hours * 3600.0) / kSecondsPerDay));
}

/// Makes the moments of one day.
class DayMaker {
public:
    DayMaker(const YearSource& year, std::size_t row)
        : year_(year), rules_(year.rules), row_(row), sun_(SunOfDay(year, row)) {}

    DayMoments Make() const {
        DayMoments day{};
        day[kShurooq] = FromSun(kShurooq);
        day[kZuhr] = {sun_.hours[kZuhr]};
        day[kAsr] = FromSun(kAsr);
        day[kMaghrib] = Maghrib();
        day[kFajr] = Fajr(day[kShurooq]);
        day[kIsha] = Isha(day[kMaghrib]);
        for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
            PutOnClock(day[prayer], rules_.offsets[prayer]);
        }
        return day;
    }

private:
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

    /// A twilight of an earlier day may lie beyond a sun that stays up longer.
    Moment Fajr(const Moment& shurooq) const {
        const Moment fajr = FajrOf(year_, row_);
        const bool isLate =
            fajr.by == MomentBy::kRule && IsEvent(shurooq.hours) && fajr.hours > shurooq.hours;
        return isLate ? Moment{shurooq.hours, MomentBy::kRule} : fajr;
    }

    /// The same at the other end of the night.
    Moment IshaByAngle(const Moment& maghrib) const {
        const Moment isha = IshaOf(year_, row_);
        const bool isEarly = isha.by == MomentBy::kRule && isha.hours < maghrib.hours;
        return isEarly ? Moment{maghrib.hours, MomentBy::kRule} : isha;
    }

    int IshaMinutes() const {
        const bool isLonger = rules_.ramadan[row_] && rules_.ishaIntervalRamadan > 0;
        return isLonger ? rules_.ishaIntervalRamadan : rules_.ishaInterval;
    }

    Moment Isha(const Moment& maghrib) const {
        const int minutes = IshaMinutes();
        if (minutes == 0) {
            return IshaByAngle(maghrib);
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
            moment.hours = InZone(rules_.zone, day, moment.hours, inputs.place.timeZone);
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

DayMoments TableMoments(const PrayerRow& hours) {
    DayMoments moments;
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        moments[prayer].hours = hours[prayer];
    }
    return moments;
}

}  // namespace

DayMoments MomentsOf(const YearSource& year, std::size_t row) {
    if (year.rules == MomentRules{}) {
        return TableMoments(RowOf(year.times, row));
    }
    return DayMaker(year, row).Make();
}

DayMoments MomentsOfRow(std::size_t row) {
    return MomentsOf({RuledYear.inputs, Times, RuledYear.rules.moments}, row);
}

}  // namespace horavex
