#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "base/date.h"

namespace horavex {

/// A quantity of the sky at an instant; an angle is in degrees.
using SkyQuantity = std::function<double(Date)>;

/// Instants of the clock of Greenwich, from the first up to, not including, the last.
struct SkySpan {
    Date from;
    Date end;
};

/// An instant at which a quantity passes through zero.
struct Crossing {
    Date instant;
    bool rising;  // from below to above
};

/// All passages from one instant up to, not including, another, in their order, each to a tenth of
/// a second. The quantity is looked at in steps of so many days: two passages within one are not
/// seen. An angle that turns over from 180 to -180 degrees passes through no zero.
std::vector<Crossing> CrossingsOf(const SkyQuantity& quantity, Date from, Date end, double step);

/// The first of these passages that goes the asked way; looks no further than it has to.
std::optional<Date> FirstCrossing(const SkyQuantity& quantity, Date from, Date end, double step,
                                  bool rising);

}  // namespace horavex
