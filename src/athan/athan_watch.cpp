#include "athan/athan_watch.h"

#include <optional>

#include "athan/athan_alert.h"
#include "athan/athan_notice.h"
#include "athan/athan_state.h"
#include "athan/azan_window.h"
#include "athan/prayer_sound.h"
#include "base/int16.h"
#include "base/program_state.h"
#include "platform/platform.h"
#include "store/athan_options.h"

namespace horavex {

namespace {

std::optional<double> silentSince;  // steady seconds; none while an athan is heard, or none is up
int unseenMinutes = 0;              // after which a silent athan ends that nobody sees; 0 for never
bool othersPause = false;

const ProgramStateReset reset([] {
    silentSince.reset();
    unseenMinutes = 0;
    othersPause = false;
});

void LetOthersGoOn() {
    if (othersPause) {
        othersPause = false;
        Ports().mediaPlayers.GoOn();
    }
}

/// Counts the silence of an athan that is up.
void TimeSilence() {
    if (athanActive == kFalse || IsHeard()) {
        silentSince.reset();
    } else if (!silentSince) {
        silentSince = Ports().clock.SteadySeconds();
    }
}

/// A notice holds nothing up that is not heard.
void EndSilentNotice() {
    if (athanActive != kFalse && AthanIsNoticeAlone() && !IsHeard() && !AthanAwaitsItsSound()) {
        SilenceAthanNotice();
        StopAthan();
    }
}

void EndSilentAthan() {
    const int chosen = ReadOption(option::kSilentMinutes);
    const int minutes = chosen > 0 ? chosen : unseenMinutes;
    if (minutes > 0 && silentSince && !AthanAwaitsItsSound() &&
        Ports().clock.SteadySeconds() - *silentSince >= minutes * 60.0) {
        silentSince.reset();
        StopAthan();
    }
}

/// Without a service its athan would have nothing that stops it.
void ReplaceNoticeByWindow() {
    if (athanActive != kFalse && AthanIsNoticeAlone() && !Ports().notices.HasService()) {
        BringAthanWindowUp(static_cast<Alert>(PrayerOfAthanNotice()));
        WithdrawAthanNotice();
    }
}

/// One that is heard again after it was muted, too.
void PauseOthersWhileHeard() {
    if (athanActive != kFalse && IsHeard()) {
        PauseOtherPlayers();
    }
}

}  // namespace

void EndSilentAthansAfter(int minutes) {
    unseenMinutes = minutes;
}

void BeginAthan() {
    silentSince.reset();
}

void WatchAthan() {
    WatchTone();
    ReplaceNoticeByWindow();
    TimeSilence();
    EndSilentAthan();
    EndSilentNotice();
    if (athanActive == kFalse) {
        WithdrawAthanNotice();
    }
    if (!IsHeard()) {
        LetOthersGoOn();
    }
    PauseOthersWhileHeard();
}

void PauseOtherPlayers() {
    if (!othersPause && ReadOption(option::kPausePlayers) == 1) {
        othersPause = true;
        Ports().mediaPlayers.PauseAll();
    }
}

void LeaveSession() {
    LetOthersGoOn();
    WithdrawAthanNotice();
}

}  // namespace horavex
