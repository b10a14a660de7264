#pragma once

#include <gtest/gtest.h>

#include "e2e/harness/faked_clock.h"
#include "e2e/harness/test_desktop.h"

namespace horavex {

inline constexpr const char* kFaceTitle = "Horavex";
inline constexpr const char* kProgressTitle = "Horavex Prayer Time Software ";

/// The built desktop program on a desktop of its own, whose clock the test sets. Only the program
/// sees that clock, not the tools around it.
class ProgramFixture : public testing::Test {
protected:
    ChildProcess StartProgram();

    /// The file of the user's stored values.
    std::string StoredValues() const { return ContentOf(desktop / "config/horavex/registry.ini"); }

    /// Waits until the face has told the given number of seconds; what was sent to the program
    /// before has then been handled.
    void LetSecondsPass(int seconds) const;

    TestDesktop desktop;
    FakedClock clock{"2026-11-21 12:34:56"};
    Environment programVariables;  // besides those of the desktop
};

}  // namespace horavex
