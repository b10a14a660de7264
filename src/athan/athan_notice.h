#pragma once

#include <string>
#include <vector>

#include "base/date.h"
#include "base/prayers.h"
#include "engine/moments_around.h"

namespace horavex {

// Prayers in the desktop's notifications, in the words of the current pack. Without a service none
// of them shows anything.

/// Whether an athan brings its window up now: unless a notification stands in for it.
bool AthanHasWindow();

/// Whether it shows a notification, now.
bool AthanHasNotice();

/// An athan begins. The notice stands, with a button to stop, until WithdrawAthanNotice; alone it
/// is all that the athan shows.
void ShowAthanNotice(Prayer prayer, Date at, bool alone);
void WithdrawAthanNotice();

/// Whether such a notice is all that shows of the athan that is up.
bool AthanIsNoticeAlone();
Prayer PrayerOfAthanNotice();

/// Nothing is heard of that athan: its notice becomes one of a silent prayer.
void SilenceAthanNotice();

/// A prayer that makes no sound.
void ShowSilentPrayer(Prayer prayer, Date at);

void ShowReminder(Prayer prayer, Date at, int minutes);
void ShowIqama(Prayer prayer, Date at);

/// Prayers that came while the computer slept, one at least.
void ShowMissedPrayers(const std::vector<DatedMoment>& prayers);

/// The iqama's countdown: "Iqama of Asr in 9:32".
std::string IqamaCountdown(Prayer prayer, double seconds);

/// The buttons of all notices. open brings the face up.
void BindNotices(void (*open)());

}  // namespace horavex
