#pragma once

#include <functional>

#include "base/date.h"
#include "base/prayers.h"

namespace horavex {

/// What becomes of a prayer that has arrived; called at each tick of its ten seconds. With no
/// option set every tick sounds it that finds no athan up. A prayer without an athan, and one in a
/// quiet time, is told once, silently. at: its local date and time. Sunrise has no athan.
void ReceivePrayer(Prayer prayer, Date at, const std::function<void(Alert)>& alert);

/// The moment of the athan that sounded last.
Date LastAthanMoment();

}  // namespace horavex
