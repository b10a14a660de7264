#pragma once

namespace horavex {

/// Runs the program without a face until something ends it: clock, athan, notifications and bus.
/// Returns only from a start that failed, with the exit status.
int RunService();

}  // namespace horavex
