#include "athan/signals.h"

#include <algorithm>
#include <functional>

#include "athan/athan_choices.h"
#include "athan/athan_notice.h"
#include "athan/calls.h"
#include "athan/prayer_sound.h"
#include "athan/quiet.h"
#include "engine/moments_around.h"
#include "platform/platform.h"

namespace horavex {

namespace {

constexpr double kWindow = 10.0;  // seconds in which a signal is due

using MinutesOf = std::array<WholeOption, kPrayerCount>;

bool AnySet(const MinutesOf& minutes) {
    return std::ranges::any_of(minutes, [](const auto& one) { return ReadOption(one) > 0; });
}

/// Seconds since so many minutes behind a prayer, before it if negative.
double SinceMinutes(const DatedMoment& prayer, int minutes, Date now) {
    return SecondsSince(prayer, now) - minutes * 60.0;
}

bool IsDue(const DatedMoment& prayer, int minutes, Date now) {
    const double elapsed = SinceMinutes(prayer, minutes, now);
    return elapsed >= 0.0 && elapsed < kWindow;
}

/// In a quiet time the tone is left out; where it cannot be heard the notification stands in for
/// it. A desktop that shows no notifications gets the tone instead.
void Tell(Signal signal, const std::function<void()>& showNotice) {
    const bool isQuiet = IsQuiet();
    const bool wantsTone = signal == Signal::kTone || signal == Signal::kBoth;
    const bool wantsNotice =
        signal == Signal::kNotification || signal == Signal::kBoth || (wantsTone && isQuiet);
    if (wantsNotice) {
        showNotice();
    }
    const bool hasTone = wantsTone || (wantsNotice && !Ports().notices.HasService());
    if (hasTone && !isQuiet) {
        PlayTone(wantsNotice ? [] {} : showNotice);
    }
}

void TellOnce(CallKind kind, const DatedMoment& prayer, const std::function<void()>& tell) {
    const Call call = {kind, prayer.prayer, prayer.at};
    if (!WasCalled(call)) {
        NoteCall(call);
        tell();
    }
}

void TellReminder(const DatedMoment& prayer, Date now) {
    const int minutes = ReadOption(option::kReminders[prayer.prayer]);
    if (minutes > 0 && IsDue(prayer, -minutes, now)) {
        TellOnce(CallKind::kReminder, prayer, [&] {
            Ports().broadcast.TellReminderDue("reminder", kPrayerKeys[prayer.prayer], minutes);
            Tell(ReadOption(option::kReminderSignal),
                 [prayer, minutes] { ShowReminder(prayer.prayer, prayer.at, minutes); });
        });
    }
}

void TellIqama(const DatedMoment& prayer, Date now) {
    const int minutes = IqamaMinutes(prayer.prayer);
    if (minutes > 0 && IsDue(prayer, minutes, now)) {
        TellOnce(CallKind::kIqama, prayer, [&] {
            Ports().broadcast.TellReminderDue("iqama", kPrayerKeys[prayer.prayer], minutes);
            Tell(ReadOption(option::kIqamaSignal),
                 [which = prayer.prayer, now] { ShowIqama(which, now); });
        });
    }
}

}  // namespace

void TellSignals(Date now) {
    if (!AnySet(option::kReminders) && !AnySet(option::kIqamas)) {
        return;
    }
    for (const DatedMoment& prayer : MomentsAround(now)) {
        TellReminder(prayer, now);
        TellIqama(prayer, now);
    }
}

// Sunrise has none.
int IqamaMinutes(Prayer prayer) {
    return prayer == kShurooq ? 0 : ReadOption(option::kIqamas[prayer]);
}

std::string IqamaAhead(Date now) {
    if (!AnySet(option::kIqamas)) {
        return {};
    }
    std::string text;
    for (const DatedMoment& prayer : MomentsAround(now)) {
        const double left = -SinceMinutes(prayer, IqamaMinutes(prayer.prayer), now);
        if (left > 0.0 && SecondsSince(prayer, now) >= 0.0) {
            text = IqamaCountdown(prayer.prayer, left);
        }
    }
    return text;
}

}  // namespace horavex
