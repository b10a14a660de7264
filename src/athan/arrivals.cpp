#include "athan/arrivals.h"

#include "athan/athan_alert.h"
#include "athan/athan_choices.h"
#include "athan/athan_notice.h"
#include "athan/athan_state.h"
#include "athan/azan_window.h"
#include "athan/calls.h"
#include "athan/prayer_sound.h"
#include "athan/quiet.h"
#include "base/int16.h"
#include "base/program_state.h"

namespace horavex {

namespace {

Call lastAthan;  // that began

const ProgramStateReset reset([] { lastAthan = {}; });

enum class Reception { kNothing, kAthan, kNotice };

bool IsSilenced(Prayer prayer) {
    return ReadOption(option::kAthans[prayer]) == 0 || IsQuiet();
}

/// One that was chosen to be silent, or short, keeps no other away.
bool SilentOneGivesWay() {
    return ReadOption(option::kSilentMinutes) > 0 ||
           ReadOption(option::kAthanSounds[lastAthan.prayer]) != AthanSound::kProgram;
}

/// An earlier athan is still up: heard it is left alone.
Reception BesideEarlierAthan() {
    if (SilentOneGivesWay() && !IsHeard() && !AthanAwaitsItsSound()) {
        return Reception::kAthan;
    }
    return ReadOption(option::kAthanOnce) == 1 ? Reception::kNotice : Reception::kNothing;
}

Reception ReceptionOf(const Call& call) {
    const bool wasCalled = WasCalled(call);
    if (IsSilenced(call.prayer)) {
        return wasCalled ? Reception::kNothing : Reception::kNotice;
    }
    if (wasCalled && (athanActive != kFalse || AthanEndsForGood(call.prayer))) {
        return Reception::kNothing;
    }
    return athanActive == kFalse ? Reception::kAthan : BesideEarlierAthan();
}

void SoundPrayer(const Call& call, const std::function<void(Alert)>& alert) {
    if (athanActive != kFalse) {
        StopAthan();
    }
    lastAthan = call;
    alert(static_cast<Alert>(call.prayer));
}

}  // namespace

void ReceivePrayer(Prayer prayer, Date at, const std::function<void(Alert)>& alert) {
    if (prayer == kShurooq) {
        return;
    }
    const Call call = {CallKind::kPrayer, prayer, at};
    const Reception reception = ReceptionOf(call);
    NoteCall(call);
    if (reception == Reception::kAthan) {
        SoundPrayer(call, alert);
    } else if (reception == Reception::kNotice) {
        ShowSilentPrayer(prayer, at);
    }
}

/// Without an option it comes again; one that is chosen short would do so every time.
bool AthanEndsForGood(Prayer prayer) {
    return ReadOption(option::kAthanOnce) == 1 ||
           ReadOption(option::kAthanSounds[prayer]) != AthanSound::kProgram ||
           ReadOption(option::kAthanShown) != AthanShown::kWindow;
}

const Call& LastAthan() {
    return lastAthan;
}

}  // namespace horavex
