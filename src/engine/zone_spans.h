#pragma once

#include <vector>

#include "engine/moment_rules.h"

namespace horavex {

// The clock of a zone, told by its spans: one at least.

/// The span of an instant of Universal Time. The first one holds before it, too.
const ZoneSpan& SpanAt(const std::vector<ZoneSpan>& zone, Date instant);

/// The span whose clock shows a local time: the earlier one of a time that comes twice. A time
/// that is left out counts on the clock behind the change.
const ZoneSpan& SpanOfLocal(const std::vector<ZoneSpan>& zone, Date local);

}  // namespace horavex
