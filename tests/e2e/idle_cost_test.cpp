// What the face costs while nothing happens, in processor time and memory. With
// HORAVEX_IDLE_SECONDS set it is watched for so long, five minutes for figures that are told.

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <memory>
#include <thread>

#include "e2e/harness/faked_clock.h"
#include "e2e/harness/status_notifier_host.h"
#include "e2e/harness/test_desktop.h"
#include "e2e/harness/wait_until.h"

namespace horavex {
namespace {

using Seconds = std::chrono::duration<double>;

constexpr std::chrono::seconds kSettling{5};
constexpr const char* kDawn = "2026-11-21 05:45:00";  // the sky changes with each minute

Seconds Watched() {
    constexpr double kByDefault = 10.0;
    const char* wanted = std::getenv("HORAVEX_IDLE_SECONDS");
    return Seconds(wanted == nullptr ? kByDefault : std::atof(wanted));
}

/// Processor time that a program has used.
Seconds CostOf(const ChildProcess& program) {
    std::ifstream in("/proc/" + std::to_string(program.Id()) + "/schedstat");
    double nanoseconds = 0.0;
    in >> nanoseconds;
    return Seconds(nanoseconds * 1e-9);
}

/// Its part of the memory, in megabytes.
double MemoryOf(const ChildProcess& program) {
    std::ifstream in("/proc/" + std::to_string(program.Id()) + "/smaps_rollup");
    for (std::string word; in >> word;) {
        if (double kilobytes = 0.0; word == "Pss:" && in >> kilobytes) {
            return kilobytes / 1000.0;
        }
    }
    return 0.0;
}

/// A program on a desktop of its own, watched from a moment on.
class Scene {
public:
    explicit Scene(std::string name) : name_(std::move(name)) {}

    void StoreOption(const std::string& option) const {
        std::ofstream file(desktop / "config/horavex/registry.ini", std::ios::app);
        file << "[Software\\\\Horavex\\\\Options]\n" << option << "=1\n";
    }

    void Start(const std::string& program = "horavex") {
        program_ = std::make_unique<ChildProcess>(desktop.Start(program));
        WaitUntil("a window", [this] { return !desktop.WindowsOf(*program_).empty(); });
    }

    void Minimise() const {
        const std::string face = desktop.WaitForWindow(*program_, "Horavex");
        desktop.Use({"xdotool", "windowminimize", face});
    }

    /// Into the notification area, which a panel must have. The face may still be moving.
    void Hide() const {
        const std::string face = desktop.WaitForWindow(*program_, "Horavex");
        WaitUntil("a hidden face", [&] {
            desktop.Click(face, 397, 23);
            std::this_thread::sleep_for(kLookEvery);
            return !desktop.IsOnView(*program_, face);
        });
    }

    void Watch() { before_ = CostOf(*program_); }

    /// Of one core, in percent.
    double Cost() const { return 100.0 * (CostOf(*program_) - before_) / Watched(); }

    double Tell() const {
        const double cost = Cost();
        std::cout << name_ << ": " << cost << " % of a core, " << MemoryOf(*program_) << " MB\n";
        EXPECT_GT(cost, 0.0) << name_;
        return cost;
    }

    TestDesktop desktop;

private:
    std::string name_;
    std::unique_ptr<ChildProcess> program_;
    Seconds before_{};
};

class IdleCostTest : public testing::Test {
protected:
    IdleCostTest() {
        bare.Start("bare_window");
        visible.Start();
        clock.InstallIn(dawn.desktop.variables);
        dawn.Start();
        minimised.Start();
        minimised.Minimise();
        hidden.Start();
        panel.AwaitIcon();
        hidden.Hide();
        line.StoreOption("Face Small");
        line.Start();
        fullScreen.StoreOption("Face Full Screen");
        fullScreen.Start();
    }

    const FakedClock clock{kDawn};
    Scene bare{"bare window"};
    Scene visible{"face on view"};
    Scene dawn{"face at dawn, by a faked clock"};
    Scene minimised{"face minimised"};
    Scene hidden{"face in the notification area"};
    StatusNotifierHost panel{hidden.desktop};
    Scene line{"face as a line"};
    Scene fullScreen{"face over the whole screen"};
};

TEST_F(IdleCostTest, FaceTakesLessThanHalfAPercentOfACoreInEachShape) {
    Scene* const scenes[] = {&bare, &visible, &dawn, &minimised, &hidden, &line, &fullScreen};
    std::this_thread::sleep_for(kSettling);
    for (Scene* scene : scenes) {
        scene->Watch();
    }
    std::this_thread::sleep_for(Watched());
    for (const Scene* scene : scenes) {
        EXPECT_LT(scene->Tell(), 0.5);
    }
}

}  // namespace
}  // namespace horavex
