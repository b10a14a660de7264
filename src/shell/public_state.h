#pragma once

#include "base/prayers.h"
#include "engine/day_view.h"
#include "platform/broadcast.h"

namespace horavex {

/// What other programs can read of the day on view.
ToldState PublicState();

/// Tells them what has changed since the last call: the state, the end of an athan, a new day.
/// Nothing before a day was shown. Called by the start, so that no signal comes before the state,
/// and by the clock.
void PublishState();

/// A prayer has arrived; told once, however many ticks see it, also where settings have moved it a
/// little meanwhile. Sunrise is no prayer.
void PublishArrival(Prayer prayer, const OwnMoment& own);

/// Takes what other programs ask for.
void BindBroadcast();

}  // namespace horavex
