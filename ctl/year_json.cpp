#include "ctl/year_json.h"

#include <cmath>
#include <vector>

#include "base/rounding.h"
#include "ctl/basis.h"
#include "ctl/calculation.h"
#include "ctl/place_clock.h"
#include "engine/angle.h"
#include "engine/current_year.h"
#include "engine/moments.h"
#include "engine/ruled_year.h"
#include "engine/year_table.h"
#include "engine/zone_spans.h"
#include "store/location_record.h"
#include "timetables/timetable.h"

namespace horavex {

namespace {

using YearMoments = std::vector<DayMoments>;

/// By row; none of a year that gave up.
YearMoments TakeMoments() {
    return CalcFailed == 0 ? MomentsOfAllRows() : YearMoments();
}

/// Appends what append writes of each number below count as an array.
template <class Append>
void AppendArray(std::string& text, std::size_t count, Append append) {
    text += '[';
    for (std::size_t item = 0; item < count; ++item) {
        text += item == 0 ? "" : ",";
        append(item);
    }
    text += ']';
}

std::string TimesJson(const YearMoments& moments) {
    std::string text;
    AppendArray(text, DaysOfYear(), [&](std::size_t row) {
        AppendArray(text, kPrayerCount, [&](std::size_t prayer) {
            AppendJsonNumber(
                text, moments.empty() ? TimesOfRow(row)[prayer] : moments[row][prayer].hours);
        });
    });
    return text;
}

/// The clock of the year, whose zone has been looked up once.
class YearClock {
public:
    /// "2026-06-21T23:14:05+03:00", or "" where a moment does not come.
    std::string StampOf(Date day, double hours) const {
        if (std::fabs(hours) >= NoEvent) {
            return {};
        }
        const Date local = day + RoundHalfEven(hours * kSecondsPerHour) / kSecondsPerDay;
        return IsoMoment(day, hours, HoursAhead(local, day));
    }

private:
    double HoursAhead(Date local, Date day) const {
        return zone_.empty() ? record_.OffsetOfLocal(local, day).seconds / kSecondsPerHour
                             : SpanOfLocal(zone_, local).hours;
    }

    const std::vector<ZoneSpan>& zone_ = RuledYear.rules.moments.zone;
    ZoneClock record_ = WorkingClock();
};

void AppendMoment(std::string& text, std::size_t prayer, const std::string& stamp, MomentBy by) {
    text += "{\"prayer\":\"";
    text += kPrayerKeys[prayer];
    text += stamp.empty() ? "\",\"local\":null" : "\",\"local\":\"" + stamp + '"';
    text += ",\"by\":\"";
    text += WordOf(by);
    text += "\"}";
}

std::string MomentsJson(const YearMoments& moments) {
    if (moments.empty()) {
        return "null";
    }
    const YearClock clock;
    const Date newYear = DateSerial(CurrentYear, 1, 1);
    std::string text;
    AppendArray(text, moments.size(), [&](std::size_t row) {
        const Date day = newYear + static_cast<double>(row);
        AppendArray(text, kPrayerCount, [&](std::size_t prayer) {
            const Moment& moment = moments[row][prayer];
            AppendMoment(text, prayer, clock.StampOf(day, moment.hours), moment.by);
        });
    });
    return text;
}

void AddYearBasis(ObjectText& object, const YearMoments& moments) {
    Json basis = Json::object();
    AddBasis(basis, DateSerial(CurrentYear, 1, 1));
    object.Add(basis);
    object.Add("moments", MomentsJson(moments));
}

}  // namespace

std::string YearJson() {
    const YearMoments moments = TakeMoments();
    const Json head = {{"year", CurrentYear},
                       {"latitude", StoredCoord(Location.City.Latitude)},
                       {"longitude", StoredCoord(Location.City.Longitude)},
                       {"calcFailed", CalcFailed},
                       {"failure", FailureJson()}};
    ObjectText object(head);
    object.Add("times", TimesJson(moments));
    AddYearBasis(object, moments);
    return object.Text();
}

void AddYearBasis(ObjectText& object) {
    AddYearBasis(object, TakeMoments());
}

}  // namespace horavex
