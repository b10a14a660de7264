#pragma once

#include <string>

#include "base/date.h"
#include "base/prayers.h"

namespace horavex {

// Reminders before the prayers and before sunrise, and iqamas after the prayers. Each is told once,
// in the ten seconds from its moment on.

/// Tells those that are due. Called by the clock.
void TellSignals(Date now);

/// Minutes from a prayer to its iqama; 0 where none is told.
int IqamaMinutes(Prayer prayer);

/// The countdown to the iqama that is ahead while its prayer is over, in words; else empty.
std::string IqamaAhead(Date now);

}  // namespace horavex
