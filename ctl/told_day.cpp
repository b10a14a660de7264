#include "ctl/told_day.h"

#include "ctl/place_clock.h"
#include "ctl/place_options.h"
#include "timetables/timetable.h"

namespace horavex {

ToldState ToldDay(const DayView& day) {
    ToldState told;
    told.place = day.place;
    told.zone = ChosenOptions.zone.empty() ? "UTC" + OffsetText(WorkingOffset(day.now, day.date))
                                           : ChosenOptions.zone;
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        const Moment& moment = day.moments[prayer];
        told.moments.push_back(
            {kPrayerKeys[prayer], WorkingStamp(day.date, moment.hours), WordOf(moment.by)});
    }
    told.nextPrayer = kPrayerKeys[static_cast<std::size_t>(day.next.prayer)];
    const OwnMoment next = OwnNext(day);
    told.nextTime = WorkingStamp(next.day, next.moment.hours);
    told.hijriDate = IsoDate(day.hijri);
    return told;
}

}  // namespace horavex
