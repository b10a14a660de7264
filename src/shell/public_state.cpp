#include "shell/public_state.h"

#include <cmath>
#include <optional>

#include "athan/athan_alert.h"
#include "athan/athan_state.h"
#include "athan/azan_window.h"
#include "athan/quiet.h"
#include "base/int16.h"
#include "base/program_state.h"
#include "engine/day_driver.h"
#include "engine/moments_around.h"
#include "engine/ruled_year.h"
#include "engine/solar_event.h"
#include "engine/zone_clock.h"
#include "platform/platform.h"
#include "shell/close_face.h"
#include "shell/tray_icon.h"
#include "store/settings_record.h"
#include "timetables/timetable.h"

namespace horavex {

namespace {

constexpr double kSecondsPerHour = 3600.0;

/// What was told last.
struct Told {
    std::string date;
    bool athanPlaying = false;
    std::optional<Prayer> arrived;
    Date arrivedAt = 0.0;
};
Told told;

const ProgramStateReset reset([] { told = {}; });

ZoneClock ClockOfTimes() {
    return {RuledYear.rules.zoneName, ActiveSettings};
}

/// A local date and time of the clock that the times go by. day: the one whose moment it is.
std::string StampOfTimes(Date local, Date day) {
    const double offset = ClockOfTimes().OffsetOfLocal(local, day).seconds / kSecondsPerHour;
    const Date midnight = std::floor(local);
    return IsoMoment(midnight, (local - midnight) * 24.0, offset);
}

std::string StampOfComputer(Date local) {
    const Date midnight = std::floor(local);
    return IsoMoment(midnight, (local - midnight) * 24.0, Ports().clock.OffsetOn(midnight).hours);
}

ToldMoment TellMoment(Prayer prayer, Date day, const Moment& moment) {
    const bool comes = std::fabs(moment.hours) < NoEvent;
    return {kPrayerKeys[prayer], comes ? StampOfTimes(day + moment.hours / 24.0, day) : "",
            WordOf(moment.by)};
}

std::vector<ToldMoment> TellMoments(const DayView& day) {
    std::vector<ToldMoment> moments;
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        moments.push_back(TellMoment(static_cast<Prayer>(prayer), day.date, day.moments[prayer]));
    }
    return moments;
}

/// "UTC+02:00" where the zone has no name.
std::string ZoneText(Date now) {
    const std::string& name = RuledYear.rules.zoneName;
    return name.empty() ? "UTC" + StampOfTimes(now, std::floor(now)).substr(19) : name;
}

std::string NextTime(const DayView& day) {
    const Date date = day.date + (day.next.isTomorrows ? 1.0 : 0.0);
    return TellMoment(static_cast<Prayer>(day.next.prayer), date, day.next.moment).local;
}

std::string QuietStamp(Date now) {
    const std::optional<Date> end = QuietEnd(now);
    return end ? StampOfComputer(*end) : "";
}

void TellEndOfAthan(bool isPlaying) {
    if (told.athanPlaying && !isPlaying) {
        Ports().broadcast.TellAthanStopped();
    }
    told.athanPlaying = isPlaying;
}

void TellNewDay(const std::string& date) {
    if (!told.date.empty() && told.date != date) {
        Ports().broadcast.TellDayChanged(date);
    }
    told.date = date;
}

void StopAthanThatIsUp() {
    if (athanActive != kFalse) {
        StopAthan();
    }
}

}  // namespace

ToldState PublicState() {
    const DayView& day = ShownDay;
    return {.place = day.place,
            .zone = ZoneText(day.now),
            .moments = TellMoments(day),
            .nextPrayer = kPrayerKeys[static_cast<std::size_t>(day.next.prayer)],
            .nextTime = NextTime(day),
            .hijriDate = IsoDate(day.hijri),
            .athanPlaying = athanActive != kFalse,
            .quietUntil = QuietStamp(Ports().clock.Now())};
}

void PublishState() {
    const ToldState state = PublicState();
    Ports().broadcast.Publish(state);
    TellEndOfAthan(state.athanPlaying);
    TellNewDay(IsoDate(CivilFromDate(ShownDay.date)));
}

void PublishArrival(Prayer prayer, Date at) {
    if (prayer == kShurooq || (told.arrived == prayer && told.arrivedAt == at)) {
        return;
    }
    told.arrived = prayer;
    told.arrivedAt = at;
    Ports().broadcast.TellPrayerArrived(kPrayerKeys[prayer], StampOfTimes(at, std::floor(at)));
}

void BindBroadcast() {
    Broadcast& broadcast = Ports().broadcast;
    broadcast.onShow = BringFaceBack;
    broadcast.onHide = CloseFace;
    broadcast.onAthanNow = [] { sub04F9(Alert::kAthanNow); };
    broadcast.onStopAthan = StopAthanThatIsUp;
    broadcast.onQuiet = ChooseQuietFor;
}

}  // namespace horavex
