#include "athan/missed.h"

#include <optional>
#include <utility>

#include "athan/athan_notice.h"
#include "athan/calls.h"
#include "base/program_state.h"
#include "engine/moments_around.h"
#include "store/athan_options.h"

namespace horavex {

namespace {

constexpr double kWindow = 10.0 / kSecondsPerDay;  // in which a prayer still arrives
constexpr double kLongAgo = 1.0 / 24.0;

Date lastTick = 0.0;  // 0 before the first one

const ProgramStateReset reset([] { lastTick = 0.0; });

/// The last prayer that arrived and went by between two ticks.
std::optional<Call> MissedBetween(Date from, Date now) {
    std::optional<Call> missed;
    for (const DatedMoment& moment : MomentsAround(now)) {
        const Call call = {CallKind::kPrayer, moment.prayer, moment.at};
        const bool wentBy =
            moment.at > from && moment.at <= now - kWindow && moment.at >= now - kLongAgo;
        if (wentBy && moment.prayer != kShurooq && !WasCalled(call)) {
            missed = call;
        }
    }
    return missed;
}

}  // namespace

void TellMissedPrayer(Date now) {
    const Date from = std::exchange(lastTick, now);
    if (from == 0.0 || now - from <= kWindow || ReadOption(option::kTellMissed) == 0) {
        return;
    }
    if (const auto missed = MissedBetween(from, now)) {
        NoteCall(*missed);
        ShowMissedPrayer(missed->prayer, missed->at);
    }
}

}  // namespace horavex
