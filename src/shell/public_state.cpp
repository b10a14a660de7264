#include "shell/public_state.h"

#include <cmath>
#include <optional>

#include "athan/athan_alert.h"
#include "athan/athan_state.h"
#include "athan/azan_window.h"
#include "athan/calls.h"
#include "athan/quiet.h"
#include "base/int16.h"
#include "base/program_state.h"
#include "engine/day_driver.h"
#include "engine/ruled_year.h"
#include "engine/solar_event.h"
#include "engine/zone_clock.h"
#include "platform/platform.h"
#include "shell/close_face.h"
#include "shell/face_shape.h"
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
};
Told told;

const ProgramStateReset reset([] { told = {}; });

std::string StampOfComputer(Date local) {
    const Date midnight = std::floor(local);
    return IsoMoment(midnight, (local - midnight) * 24.0, Ports().clock.OffsetAt(local).hours);
}

/// Hours that the clock of a moment is ahead of Greenwich. Without a zone the daylight hour goes by
/// the day whose moment it is.
double OffsetOf(const Moment& moment, Date day) {
    if (!RuledYear.rules.moments.zone.empty()) {
        return moment.offset;
    }
    return ZoneClock({}, ActiveSettings).OffsetOfLocal(day, day).seconds / kSecondsPerHour;
}

/// Empty where it does not come.
std::string StampOf(const OwnMoment& own) {
    const auto& [day, moment] = own;
    const bool comes = std::fabs(moment.hours) < NoEvent;
    return comes ? IsoMoment(day, moment.hours, OffsetOf(moment, day)) : "";
}

std::vector<ToldMoment> TellMoments(const DayView& day) {
    std::vector<ToldMoment> moments;
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        const Moment& moment = day.moments[prayer];
        moments.push_back({kPrayerKeys[prayer], StampOf({day.date, moment}), WordOf(moment.by)});
    }
    return moments;
}

/// "UTC+02:00" where the zone has no name.
std::string ZoneText(Date now) {
    const std::string& name = RuledYear.rules.zoneName;
    return name.empty() ? "UTC" + StampOf({std::floor(now), {}}).substr(19) : name;
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
            .nextTime = StampOf(OwnNext(day)),
            .hijriDate = IsoDate(day.hijri),
            .athanPlaying = athanActive != kFalse,
            .quietUntil = QuietStamp(Ports().clock.Now())};
}

void PublishState() {
    if (ShownDay.date == 0.0) {
        return;
    }
    const ToldState state = PublicState();
    Ports().broadcast.Publish(state);
    TellEndOfAthan(state.athanPlaying);
    TellNewDay(IsoDate(CivilFromDate(ShownDay.date)));
}

void PublishArrival(Prayer prayer, const OwnMoment& own) {
    const Call arrival = {CallKind::kArrival, prayer, own.day + own.moment.hours / 24.0};
    if (prayer == kShurooq || WasCalled(arrival)) {
        return;
    }
    NoteCall(arrival);
    Ports().broadcast.TellPrayerArrived(kPrayerKeys[prayer], StampOf(own));
}

void BindBroadcast() {
    Broadcast& broadcast = Ports().broadcast;
    broadcast.onShow = [] {
        BringFaceBack();
        BringFullScreenUp();
    };
    broadcast.onHide = [] {
        LeaveFullScreen();
        CloseFace();
    };
    broadcast.onAthanNow = [] { sub04F9(Alert::kAthanNow); };
    broadcast.onStopAthan = StopAthanThatIsUp;
    broadcast.onQuiet = ChooseQuietFor;
}

}  // namespace horavex
