#pragma once

namespace horavex {

/// The Julian date of the midnight from which a Date counts, 30 December 1899. With a Date it is a
/// Julian date in two parts, as libraries take it for the sake of its last figures.
inline constexpr double kJulianEpoch = 2415018.5;

}  // namespace horavex
