#pragma once

namespace horavex {

/// Waits until the span, in days, has passed since the call; events are delivered meanwhile. A
/// span of 0 or below returns at once.
void WaitSeconds(double span);

}  // namespace horavex
