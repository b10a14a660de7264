#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "e2e/harness/faked_clock.h"
#include "e2e/harness/program_fixture.h"
#include "e2e/harness/sound_server.h"
#include "e2e/harness/test_desktop.h"
#include "support/wav.h"

namespace horavex {

inline constexpr const char* kAthanTitle = "Athan";
inline constexpr int kNoAlarm = 0;  // midnight

/// The built program at noon of a day, with sounds of the test's own for its athans and a sound
/// device that can be recorded.
class AthanProgramTest : public testing::Test {
protected:
    AthanProgramTest();

    void SetSound(const std::string& name, const Samples& samples) const;
    void StoreSettings(std::int16_t athanType, int alarmTime) const;

    /// Makes these the user's options, by name.
    void StoreOptions(const std::vector<std::pair<std::string, std::string>>& options) const;

    /// Starts the program and waits for its face.
    ChildProcess Start();

    /// When a prayer of the day comes, in seconds of the day.
    int SecondOf(std::size_t prayer) const;

    void SetClock(int second) const;

    /// A second before a prayer's time.
    void GoTo(std::size_t prayer) const { SetClock(SecondOf(prayer) - 1); }

    /// Waits until the athan window has risen, and returns it.
    std::string WaitForAthan(const ChildProcess& program) const;

    void Click(const std::string& window, int x, int y) const;
    void PressStop(const std::string& window) const { Click(window, 180, 161); }

    /// Whether the athan window is.
    bool IsOnView(const ChildProcess& program) const;

    /// The face shows another second: the program runs on.
    void ExpectTicks() const;

    const Samples others = Glide(20.0, 300.0, 900.0);
    const Samples fajr = Glide(20.0, 1500.0, 1000.0);
    TestDesktop desktop;
    std::optional<SoundServer> sound{std::in_place};
    FakedClock clock{"2026-11-21 12:00:00"};
    Environment programVariables;
    std::string face;

private:
    bool IsTopMost(const std::string& window) const;
};

}  // namespace horavex
