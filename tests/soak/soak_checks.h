#pragma once

#include <string>
#include <utility>
#include <vector>

#include "base/date.h"
#include "support/test_platform.h"

namespace horavex {

/// Keeps account of the prayers: each that the clock comes to is told to other programs once, and
/// none is told that it has not come to.
class ArrivalLedger {
public:
    /// A tick of that moment is over. Takes the signals since the one before; returns how many
    /// prayers arrived.
    int Take(Date tick, std::vector<std::string>& signals);

    /// Every prayer that the tick came to has been told. Not to be asked where the year has become
    /// another one meanwhile.
    static void ExpectAllTold(Date tick);

    /// The clock was set: what comes may have been told before.
    void Forget();

private:
    void ExpectToldOnce(Date tick, const std::string& signal);

    std::vector<std::pair<std::string, Date>> told_;  // prayers of the last day, and their ticks
};

/// The program rests behind a tick: what it shows is the day of its year, on the face, in the
/// notification area and for other programs.
void CheckWhatIsShown(const TestPlatform& platform);

/// It rests without an open window: what is stored and what the year was made from is what was
/// accepted, and everything that a command takes is given back.
void CheckWhatIsAccepted(TestPlatform& platform);

}  // namespace horavex
