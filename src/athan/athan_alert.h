#pragma once

#include <cstdint>

namespace horavex {

/// A prayer (0, 2 to 5), the daily alarm (7) or "Athan Now" (-1) has arrived; 1 is ignored, since
/// sunrise has no athan. The alarm stands until the user closes it, 310 seconds at most, and
/// waits with the event loop running.
void sub04F9(std::int16_t index);

}  // namespace horavex
