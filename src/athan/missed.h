#pragma once

#include "base/date.h"

namespace horavex {

/// Tells the prayers of the past hour that the clock has jumped over since its last tick, by one
/// notice, where the option asks for it. An athan never sounds late. Called by the clock behind
/// what it does for prayers that arrive.
void TellMissedPrayers(Date now);

}  // namespace horavex
