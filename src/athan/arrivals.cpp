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

Date lastAthan = 0.0;

const ProgramStateReset reset([] { lastAthan = 0.0; });

enum class Reception { kNothing, kAthan, kNotice };

/// Without it an athan that ends within its ten seconds comes again; one that is chosen short would
/// do so every time.
bool ComesOnce(Prayer prayer) {
    return ReadOption(option::kAthanOnce) == 1 ||
           ReadOption(option::kAthanSounds[prayer]) != AthanSound::kProgram ||
           ReadOption(option::kAthanShown) != AthanShown::kWindow;
}

bool IsSilenced(Prayer prayer) {
    return ReadOption(option::kAthans[prayer]) == 0 || IsQuiet();
}

/// An earlier athan is still up: heard it is left alone, silent it gives way where such end.
Reception BesideEarlierAthan() {
    if (ReadOption(option::kSilentMinutes) > 0 && !IsHeard() && !AthanAwaitsItsSound()) {
        return Reception::kAthan;
    }
    return ReadOption(option::kAthanOnce) == 1 ? Reception::kNotice : Reception::kNothing;
}

Reception ReceptionOf(const Call& call) {
    const bool wasCalled = WasCalled(call);
    if (IsSilenced(call.prayer)) {
        return wasCalled ? Reception::kNothing : Reception::kNotice;
    }
    if (wasCalled && (athanActive != kFalse || ComesOnce(call.prayer))) {
        return Reception::kNothing;
    }
    return athanActive == kFalse ? Reception::kAthan : BesideEarlierAthan();
}

void SoundPrayer(const Call& call, const std::function<void(Alert)>& alert) {
    if (athanActive != kFalse) {
        StopAthan();
    }
    lastAthan = call.at;
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

Date LastAthanMoment() {
    return lastAthan;
}

}  // namespace horavex
