#pragma once

#include <string>

namespace horavex {

/// Brings up fMessage with its two lines.
void ShowProgressWindow(const std::string& line1, const std::string& line2);

/// Fills its progress bar to 0 to 100 percent and yields to the event loop.
void ReportProgress(double percent);

/// Takes the window away at the end of a block, whatever happens behind it.
class ProgressWindowCloser {
public:
    ProgressWindowCloser() = default;
    ~ProgressWindowCloser();
    ProgressWindowCloser(const ProgressWindowCloser&) = delete;
    ProgressWindowCloser& operator=(const ProgressWindowCloser&) = delete;
};

}  // namespace horavex
