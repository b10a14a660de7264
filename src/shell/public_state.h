#pragma once

#include "base/date.h"
#include "base/prayers.h"
#include "platform/broadcast.h"

namespace horavex {

/// What other programs can read of the day on view.
ToldState PublicState();

/// Tells them what has changed since the last call: the state, the end of an athan, a new day.
/// Called by the clock.
void PublishState();

/// A prayer has arrived; told once, however many ticks see it. Sunrise is no prayer.
void PublishArrival(Prayer prayer, Date at);

/// Takes what other programs ask for.
void BindBroadcast();

}  // namespace horavex
