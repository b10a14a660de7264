#include "athan/quiet.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "athan/athan_choices.h"
#include "athan/athan_state.h"
#include "athan/azan_window.h"
#include "athan/sound.h"
#include "base/int16.h"
#include "base/program_state.h"
#include "base/stamp.h"
#include "engine/day_driver.h"
#include "engine/moments_around.h"
#include "lang/filled_text.h"
#include "lang/language_pack.h"
#include "platform/platform.h"
#include "store/save_change.h"
#include "windows/frm_main.h"

namespace horavex {

namespace {

constexpr double kMinutesPerDay = 1440.0;
constexpr double kArrival = 10.0 / kSecondsPerDay;  // in which a prayer arrives
constexpr double kOver = 1e-9;                      // days; what is left of a quiet that is over

bool isShown = false;  // on the icon

const ProgramStateReset reset([] { isShown = false; });

Date Now() {
    return Ports().clock.Now();
}

/// A moment of the user's; one that is over counts no more.
std::optional<Date> ChosenEnd(Date now) {
    const std::optional<Date> end = DateOfStamp(ReadOption(option::kQuietUntil));
    return end && *end - now > kOver ? end : std::nullopt;
}

/// The end of the hours of the day that hold a moment, over midnight where they go over it.
std::optional<Date> EndOfHours(Date now) {
    const QuietHours hours = ReadQuietHours();
    if (!hours.on || hours.from == hours.to) {
        return std::nullopt;
    }
    const Date today = std::floor(now);
    for (const Date day : {today - 1.0, today}) {
        const Date from = day + hours.from / kMinutesPerDay;
        const Date to = day + hours.to / kMinutesPerDay + (hours.to < hours.from ? 1.0 : 0.0);
        if (now - from > -kOver && to - now > kOver) {
            return to;
        }
    }
    return std::nullopt;
}

/// Midnight, and today's Isha where it comes behind that.
Date EndOfDay() {
    const Date midnight = Ports().clock.Today() + 1.0;
    const Moment& isha = ShownDay.moments[kIsha];
    return isha.dayShift > 0 ? ShownDay.date + isha.hours / 24.0 + kArrival : midnight;
}

Date NextPrayerMoment() {
    const Date now = Now();
    const std::vector<DatedMoment> around = MomentsAround(now);
    const auto next = std::ranges::find_if(around, [&](const DatedMoment& moment) {
        return moment.prayer != kShurooq && moment.at > now;
    });
    return next == around.end() ? EndOfDay() : next->at;
}

bool IsChosen(Date end) {
    return ReadOption(option::kQuietUntil) == StampOf(end);
}

void FallSilent() {
    if (athanActive != kFalse) {
        StopAthan();
    } else {
        StopSound();
    }
}

void SetEnd(std::optional<Date> end) {
    SaveChange(option::kQuietUntil, end ? StampOf(*end) : std::string(), std::string());
    if (end) {
        FallSilent();
    }
    ShowQuiet();
}

void ChooseUntil(Date end) {
    SetEnd(IsChosen(end) ? std::nullopt : std::optional(end));
}

void CheckEntries(Date now) {
    const bool isChosen = ChosenEnd(now).has_value();
    const bool isToday = isChosen && IsChosen(EndOfDay());
    frmMain->mnuPopQuietToday.SetChecked(isToday);
    frmMain->mnuPopQuietNext.SetChecked(isChosen && !isToday);
    frmMain->mnuPopQuietHours.SetChecked(ReadQuietHours().on);
}

}  // namespace

std::optional<Date> QuietEnd(Date now) {
    const std::optional<Date> chosen = ChosenEnd(now);
    const std::optional<Date> hours = EndOfHours(now);
    return chosen && hours ? std::max(*chosen, *hours) : chosen ? chosen : hours;
}

bool IsQuiet() {
    return QuietEnd(Now()).has_value();
}

void ChooseQuietUntilNextPrayer() {
    ChooseUntil(NextPrayerMoment());
}

void ChooseQuietToday() {
    ChooseUntil(EndOfDay());
}

void ChooseQuietFor(int minutes) {
    const double days = std::clamp(minutes / kMinutesPerDay, 0.0, 1.0);
    SetEnd(days > 0.0 ? std::optional(Now() + days) : std::nullopt);
}

void ChooseQuietHours() {
    SaveChange(option::kQuietHours, ReadQuietHours().on ? 0 : 1, 0);
    if (IsQuiet()) {
        FallSilent();
    }
    ShowQuiet();
}

std::string QuietText() {
    const std::optional<Date> end = QuietEnd(Now());
    return end ? FilledText(GetLangString("notices", "QuietUntil", "Quiet until {time}"), "{time}",
                            Ports().formats.MediumTime(*end))
               : "";
}

void ShowQuiet() {
    const Date now = Now();
    CheckEntries(now);
    const bool isQuiet = QuietEnd(now).has_value();
    if (isQuiet != isShown) {
        isShown = isQuiet;
        Ports().tray.SetQuiet(isQuiet);
    }
}

void BindQuiet() {
    frmMain->mnuPopQuietNext.onClick = ChooseQuietUntilNextPrayer;
    frmMain->mnuPopQuietToday.onClick = ChooseQuietToday;
    frmMain->mnuPopQuietHours.onClick = ChooseQuietHours;
}

}  // namespace horavex
