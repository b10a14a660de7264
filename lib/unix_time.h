#pragma once

#include <cmath>
#include <cstdint>

#include "base/date.h"
#include "base/rounding.h"

namespace horavex {

// Instants: dates of the clock of Greenwich inside, seconds since 1970 outside.

inline Date UniversalOfUnix(std::int64_t seconds) {
    return DateSerial(1970, 1, 1) + static_cast<double>(seconds) / kSecondsPerDay;
}

/// To the nearest second.
inline std::int64_t UnixOfUniversal(Date universal) {
    return std::llround((universal - DateSerial(1970, 1, 1)) * kSecondsPerDay);
}

}  // namespace horavex
