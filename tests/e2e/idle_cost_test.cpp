#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <iostream>
#include <thread>

#include "e2e/harness/test_desktop.h"

namespace horavex {
namespace {

using Seconds = std::chrono::duration<double>;

constexpr std::chrono::seconds kSettling{5};
constexpr std::chrono::seconds kWatched{20};

/// Processor time that a program has used.
Seconds CostOf(const ChildProcess& program) {
    std::ifstream in("/proc/" + std::to_string(program.Id()) + "/schedstat");
    double nanoseconds = 0.0;
    in >> nanoseconds;
    return Seconds(nanoseconds * 1e-9);
}

/// Part of one core, in percent, that each of the programs takes over the watched time.
struct IdleCosts {
    double face;
    double bare;
};

IdleCosts Watch(const ChildProcess& face, const ChildProcess& bare) {
    const auto percent = [](Seconds cost) { return 100.0 * cost / Seconds(kWatched); };
    std::this_thread::sleep_for(kSettling);
    const Seconds faceBefore = CostOf(face);
    const Seconds bareBefore = CostOf(bare);
    std::this_thread::sleep_for(kWatched);
    return {percent(CostOf(face) - faceBefore), percent(CostOf(bare) - bareBefore)};
}

TEST(IdleCostTest, VisibleFaceTakesLessThanHalfAPercentOfACore) {
    const TestDesktop desktop;
    const ChildProcess bare = desktop.Start("bare_window");
    const ChildProcess program = desktop.Start("horavex");
    desktop.WaitForWindow(bare, "bare");
    const std::string face = desktop.WaitForWindow(program, "Horavex");
    const IdleCosts costs = Watch(program, bare);
    std::cout << "of one core: face " << costs.face << " %, bare window " << costs.bare << " %\n";
    EXPECT_TRUE(desktop.IsOnView(program, face));
    EXPECT_GT(costs.face, 0.0);
    EXPECT_LT(costs.face, 0.5);
}

}  // namespace
}  // namespace horavex
