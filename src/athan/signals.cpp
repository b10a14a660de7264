#include "athan/signals.h"

#include <algorithm>
#include <functional>

#include "athan/athan_choices.h"
#include "athan/athan_notice.h"
#include "athan/calls.h"
#include "athan/prayer_sound.h"
#include "athan/quiet.h"
#include "base/rounding.h"
#include "engine/moments_around.h"
#include "platform/platform.h"

namespace horavex {

namespace {

constexpr double kMinute = 1.0 / 1440.0;  // days
constexpr double kWindow = 10.0;          // seconds in which a signal is due

using MinutesOf = std::array<WholeOption, kPrayerCount>;

bool AnySet(const MinutesOf& minutes) {
    return std::ranges::any_of(minutes, [](const auto& one) { return ReadOption(one) > 0; });
}

/// Seconds since a moment, to the microsecond.
double Since(Date at, Date now) {
    return RoundToPlaces((now - at) * kSecondsPerDay, 6);
}

bool IsDue(Date at, Date now) {
    const double elapsed = Since(at, now);
    return elapsed >= 0.0 && elapsed < kWindow;
}

/// In a quiet time the tone is left out; where it cannot be heard the notification stands in for
/// it.
void Tell(Signal signal, const std::function<void()>& showNotice) {
    const bool hasTone = signal == Signal::kTone || signal == Signal::kBoth;
    const bool isHeard = hasTone && !IsQuiet() && PlayTone();
    if (signal == Signal::kNotification || signal == Signal::kBoth || (hasTone && !isHeard)) {
        showNotice();
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
    if (minutes > 0 && IsDue(prayer.at - minutes * kMinute, now)) {
        TellOnce(CallKind::kReminder, prayer, [&] {
            Tell(ReadOption(option::kReminderSignal),
                 [&] { ShowReminder(prayer.prayer, prayer.at, minutes); });
        });
    }
}

/// Minutes to its iqama; sunrise has none.
int IqamaMinutes(Prayer prayer) {
    return prayer == kShurooq ? 0 : ReadOption(option::kIqamas[prayer]);
}

void TellIqama(const DatedMoment& prayer, Date now) {
    const int minutes = IqamaMinutes(prayer.prayer);
    const Date iqama = prayer.at + minutes * kMinute;
    if (minutes > 0 && IsDue(iqama, now)) {
        TellOnce(CallKind::kIqama, prayer, [&] {
            Tell(ReadOption(option::kIqamaSignal), [&] { ShowIqama(prayer.prayer, iqama); });
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

std::string IqamaAhead(Date now) {
    if (!AnySet(option::kIqamas)) {
        return {};
    }
    std::string text;
    for (const DatedMoment& prayer : MomentsAround(now)) {
        const double left = -Since(prayer.at + IqamaMinutes(prayer.prayer) * kMinute, now);
        if (left > 0.0 && Since(prayer.at, now) >= 0.0) {
            text = IqamaCountdown(prayer.prayer, left);
        }
    }
    return text;
}

}  // namespace horavex
