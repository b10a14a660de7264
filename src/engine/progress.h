#pragma once

namespace horavex {

/// Fills the progress bar of fMessage to 0 to 100 percent and yields to the event loop.
void ReportProgress(double percent);

}  // namespace horavex
