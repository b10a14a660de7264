#include "shell/tick.h"

#include <vector>

#include "athan/arrivals.h"
#include "athan/athan_alert.h"
#include "athan/athan_state.h"
#include "athan/athan_watch.h"
#include "athan/missed.h"
#include "athan/quiet.h"
#include "athan/signals.h"
#include "athan/sound_trial.h"
#include "base/int16.h"
#include "base/rounding.h"
#include "config/commit.h"
#include "engine/current_year.h"
#include "engine/day_driver.h"
#include "platform/platform.h"
#include "shell/public_state.h"
#include "shell/tray_icon.h"
#include "store/athan_options.h"
#include "store/settings_record.h"

namespace horavex {

namespace {

constexpr double kMatchWindow = 10.0;  // seconds in which a moment counts as arrived

/// Compares the clock in whole seconds with a fraction of a day. The difference is taken to the
/// microsecond, so that the tenth second after a moment is never inside its window.
bool HasArrived(double moment) {
    const double elapsed =
        RoundToPlaces(SecondOfDay(Ports().clock.Now()) - moment * kSecondsPerDay, 6);
    return elapsed >= 0.0 && elapsed < kMatchWindow;
}

void FollowCalendar(const TickActions& actions) {
    if (CivilFromDate(Ports().clock.Now()).year != CurrentYear) {
        actions.refreshAll();
    } else if (Ports().clock.Today() != TodayDate) {
        actions.showDay();
    }
}

/// A prayer within its ten seconds, with its moment in today's hours.
struct Arrival {
    Prayer prayer;
    Moment moment;
    int day;  // whose it is, from today

    Date At(Date today) const { return today + moment.hours / 24.0; }
    OwnMoment Own(Date today) const {
        OwnMoment own = {today + day, moment};
        own.moment.hours -= 24.0 * day;
        return own;
    }
};

/// Of moments whose own day is a neighbour of this one.
void AddArrived(std::vector<Arrival>& arrived, const std::vector<PrayerMoment>& moments, int day) {
    for (const auto& [prayer, moment] : moments) {
        if (HasArrived(moment.hours / 24.0)) {
            arrived.push_back({prayer, moment, day});
        }
    }
}

/// The prayers within their ten seconds, in order.
std::vector<Arrival> ArrivedPrayers() {
    std::vector<Arrival> arrived;
    AddArrived(arrived, ShownDay.late, -1);
    for (std::size_t prayer = 0; prayer < TodayTimes.size(); ++prayer) {
        if (HasArrived(TodayTimes[prayer])) {
            Moment moment = ShownDay.moments[prayer];
            moment.hours = TodayTimes[prayer] * 24.0;
            arrived.push_back({static_cast<Prayer>(prayer), moment, 0});
        }
    }
    AddArrived(arrived, ShownDay.early, 1);
    return arrived;
}

/// Of two within the window only the earlier one fires; the option that calls each prayer once has
/// the later one told.
void TestPrayers(const TickActions& actions) {
    std::vector<Arrival> arrived = ArrivedPrayers();
    if (arrived.empty()) {
        return;
    }
    const Date today = Ports().clock.Today();
    for (const Arrival& arrival : arrived) {
        PublishArrival(arrival.prayer, arrival.Own(today));
    }
    if (ReadOption(option::kAthanOnce) == 0) {
        arrived.resize(1);
    }
    for (const Arrival& arrival : arrived) {
        ReceivePrayer(arrival.prayer, arrival.At(today), actions.alert);
    }
    // Counts the ticks in a prayer's window; only its value -1 is ever looked at.
    ++NextPrayer;
}

/// The alarm is compared every day, whatever the state of its check box. One that is up is not
/// raised again by the ticks inside its own wait, and none comes between an athan and its sound.
/// An option switches it off.
void TestAlarm(const TickActions& actions) {
    if (alarmActive == kFalse && !AthanAwaitsItsSound() &&
        HasArrived(AlarmMoment(ActiveSettings)) && ReadOption(option::kAlarm) != 0) {
        actions.alert(Alert::kDailyAlarm);
    }
}

/// What goes with the prayers, by the time that it is behind them: an alert takes its seconds.
void FollowAthan() {
    WatchAthan();
    WatchTrial();
    const Date now = Ports().clock.Now();
    TellSignals(now);
    TellMissedPrayers(now);
    ShowQuiet();
}

}  // namespace

TickActions DefaultTickActions() {
    return {RefreshAcceptedYear, ShowDay, sub04F9};
}

void RunTick(const TickActions& actions) {
    FollowCalendar(actions);
    TestPrayers(actions);
    TestAlarm(actions);
    FollowAthan();
    actions.showDay();
}

void tmrUpdate_Timer() {
    RunTick(DefaultTickActions());
    // No notification area tells when the user points at the icon: its tip is kept fresh.
    RefreshTrayTip();
    PublishState();
}

}  // namespace horavex
