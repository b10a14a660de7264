#pragma once

#include "sky/crossing.h"

namespace horavex {

/// The instant of a span at which a quantity is least, to a tenth of a second. The quantity is
/// looked at every twenty minutes and has one low between three looks.
Date LeastOf(const SkyQuantity& quantity, const SkySpan& span);

/// How long a quantity is below zero around an instant at which it is, at most so many days to
/// either side. A return above zero for less than ten minutes is not seen.
SkySpan BelowZeroAround(const SkyQuantity& quantity, Date instant, double reach);

}  // namespace horavex
