#include "athan/missed.h"

#include <utility>
#include <vector>

#include "athan/arrivals.h"
#include "athan/athan_alert.h"
#include "athan/athan_notice.h"
#include "athan/athan_state.h"
#include "athan/azan_window.h"
#include "athan/calls.h"
#include "base/int16.h"
#include "base/program_state.h"
#include "engine/moments_around.h"
#include "store/athan_options.h"

namespace horavex {

namespace {

constexpr double kWindow = 10.0 / kSecondsPerDay;  // in which a prayer still arrives
constexpr double kLongAgo = 1.0 / 24.0;

Date lastTick = 0.0;  // 0 before the first one

const ProgramStateReset reset([] { lastTick = 0.0; });

/// The prayers that arrived and went by between two ticks, in order.
std::vector<DatedMoment> MissedBetween(Date from, Date now) {
    std::vector<DatedMoment> missed = MomentsAround(now);
    std::erase_if(missed, [&](const DatedMoment& moment) {
        const bool wentBy =
            moment.at > from && moment.at <= now - kWindow && moment.at >= now - kLongAgo;
        return !wentBy || moment.prayer == kShurooq ||
               WasCalled({CallKind::kPrayer, moment.prayer, moment.at});
    });
    return missed;
}

/// An athan does not go on behind a sleep. One that was not heard yet has been missed, too.
void EndAthanOfBefore(std::vector<DatedMoment>& missed, Date now) {
    if (athanActive == kFalse || now - LastAthan().at <= kWindow) {
        return;
    }
    if (AthanAwaitsItsSound() && LastAthan().at >= now - kLongAgo) {
        missed.insert(missed.begin(), {LastAthan().prayer, LastAthan().at, {}});
    }
    StopAthan();
}

}  // namespace

void TellMissedPrayers(Date now) {
    const Date from = std::exchange(lastTick, now);
    if (from == 0.0 || now - from <= kWindow || ReadOption(option::kTellMissed) == 0) {
        return;
    }
    std::vector<DatedMoment> missed = MissedBetween(from, now);
    EndAthanOfBefore(missed, now);
    for (const DatedMoment& moment : missed) {
        NoteCall({CallKind::kPrayer, moment.prayer, moment.at});
    }
    if (!missed.empty()) {
        ShowMissedPrayers(missed);
    }
}

}  // namespace horavex
