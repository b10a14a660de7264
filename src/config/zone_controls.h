#pragma once

#include "store/zone_year.h"

namespace horavex {

/// Fills the settings window's zone box and daylight controls from a zone, and the working
/// settings' daylight fields with them.
void FillZoneControls(const ZoneYear& zone);

}  // namespace horavex
