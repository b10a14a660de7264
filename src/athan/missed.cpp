#include "athan/missed.h"

#include <utility>
#include <vector>

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

}  // namespace

void TellMissedPrayers(Date now) {
    const Date from = std::exchange(lastTick, now);
    if (from == 0.0 || now - from <= kWindow || ReadOption(option::kTellMissed) == 0) {
        return;
    }
    const std::vector<DatedMoment> missed = MissedBetween(from, now);
    for (const DatedMoment& moment : missed) {
        NoteCall({CallKind::kPrayer, moment.prayer, moment.at});
    }
    if (!missed.empty()) {
        ShowMissedPrayers(missed);
    }
}

}  // namespace horavex
