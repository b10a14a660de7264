#include "engine/zone_spans.h"

#include <algorithm>

namespace horavex {

const ZoneSpan& SpanAt(const std::vector<ZoneSpan>& zone, Date instant) {
    const auto after = std::ranges::upper_bound(zone, instant, {}, &ZoneSpan::from);
    return after == zone.begin() ? zone.front() : *std::prev(after);
}

const ZoneSpan& SpanOfLocal(const std::vector<ZoneSpan>& zone, Date local) {
    // Each span ends by its own clock, later than the next begins where a clock is wound back.
    const auto ends =
        std::ranges::adjacent_find(zone, [local](const ZoneSpan& span, const ZoneSpan& next) {
            return local < next.from + span.hours / 24.0;
        });
    return ends == zone.end() ? zone.back() : *ends;
}

}  // namespace horavex
