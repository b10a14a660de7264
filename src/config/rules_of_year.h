#pragma once

#include <functional>
#include <optional>

#include "calendar/umm_al_qura.h"
#include "config/year_options.h"
#include "platform/zone_rules.h"

namespace horavex {

/// What the rules of a year are made from besides its options.
struct RuleSources {
    const ZoneRules& zones;
    std::function<std::optional<UmmAlQura>()> published;  // asked where the months are needed
};

/// RulesOfYear as a function of its inputs alone. Without the published months the arithmetic
/// calendar counts. Throws UnknownZoneFault.
YearRules RulesOfYear(const YearOptions& options, std::int16_t year, const RuleSources& sources);

}  // namespace horavex
