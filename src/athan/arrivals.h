#pragma once

#include <functional>

#include "athan/calls.h"
#include "base/date.h"
#include "base/prayers.h"

namespace horavex {

/// What becomes of a prayer that has arrived; called at each tick of its ten seconds. With no
/// option set every tick sounds it that finds no athan up. A prayer without an athan, and one in a
/// quiet time, is told once, silently. at: its local date and time. Sunrise has no athan.
void ReceivePrayer(Prayer prayer, Date at, const std::function<void(Alert)>& alert);

/// Whether a prayer's athan that has ended in its ten seconds stays so.
bool AthanEndsForGood(Prayer prayer);

/// The prayer whose athan began last.
const Call& LastAthan();

}  // namespace horavex
