#pragma once

#include "base/date.h"

namespace horavex {

/// Tells the prayer that the clock has jumped over since its last tick, the last one of the past
/// hour, where the option asks for it. Its athan never sounds late. Called by the clock behind what
/// it does for prayers that arrive.
void TellMissedPrayer(Date now);

}  // namespace horavex
