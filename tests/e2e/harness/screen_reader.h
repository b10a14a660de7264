#pragma once

#include <string>
#include <vector>

#include "e2e/harness/service.h"
#include "e2e/harness/test_desktop.h"

namespace horavex {

/// The services of a desktop for assistive tools, and a tool of that kind, which reads what a
/// program tells it. Programs that are started afterwards find them.
class ScreenReader {
public:
    explicit ScreenReader(TestDesktop& desktop);

    /// What stands on view, one thing a line, set in by its depth: "push button | Settings".
    std::string Tree() const;

    /// Waits until a line of the tree holds the text, and returns the tree.
    std::string WaitFor(const std::string& text) const;

private:
    TestDesktop& desktop_;
    Service services_;
};

/// What changes in the windows of a program while this lives: lines as those of the tree.
class HeardChanges {
public:
    explicit HeardChanges(const TestDesktop& desktop);

    /// Waits for a line that holds the text.
    void WaitFor(const std::string& text) const;

private:
    Service listener_;
};

}  // namespace horavex
