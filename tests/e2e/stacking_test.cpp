// Which window stands over which, as the window manager has them, while the face fills the screen.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "e2e/harness/athan_fixture.h"
#include "e2e/harness/status_notifier_host.h"
#include "e2e/harness/wait_until.h"

namespace horavex {
namespace {

constexpr const char* kReminders = "Athan and _Reminders";  // its entry in the menu of the icon

class StackingTest : public AthanProgramTest {
protected:
    std::string FillScreen(const ChildProcess& program) const {
        desktop.Use({"xdotool", "windowactivate", "--sync", face});
        const auto windows = desktop.WindowsOf(program);
        desktop.PressKey("F11");
        return desktop.WaitForAnother(program, windows, 900);
    }

    /// Waits until the one window stands over the other.
    void ExpectOver(const std::string& upper, const std::string& lower) const {
        EXPECT_TRUE(WaitUntil("another order", [&] { return PlaceOf(upper) > PlaceOf(lower); }));
    }

    /// As the display's tools print it.
    static std::string NumberOf(const std::string& window) {
        std::ostringstream number;
        number << "0x" << std::hex << std::stoul(window);
        return number.str();
    }

    /// What a window belongs to.
    std::string OwnerOf(const std::string& window) const {
        const std::string printed = desktop.Use({"xprop", "-id", window, "WM_TRANSIENT_FOR"});
        const std::size_t at = printed.find("0x");
        return at == std::string::npos ? "" : printed.substr(at, printed.find('\n') - at);
    }

private:
    /// From the lowest window on.
    std::size_t PlaceOf(const std::string& window) const {
        return desktop.Use({"xprop", "-root", "_NET_CLIENT_LIST_STACKING"}).find(NumberOf(window));
    }
};

TEST_F(StackingTest, AthanStaysOverTheFullScreenThatComesLater) {
    const ChildProcess program = Start();
    GoTo(3);
    const std::string athan = WaitForAthan(program);
    const std::string poster = FillScreen(program);
    ExpectOver(poster, face);
    ExpectOver(athan, poster);
    EXPECT_EQ(OwnerOf(athan), NumberOf(poster));
    desktop.SaveScreen("athan-full-screen");
    desktop.PressKey("Escape");
    EXPECT_TRUE(WaitUntil("an athan of its own", [&] { return OwnerOf(athan).empty(); }));
}

TEST_F(StackingTest, AthanStaysOverAWindowThatIsOpenedLaterOverTheFullScreen) {
    StatusNotifierHost host(desktop);
    const ChildProcess program = Start();
    host.AwaitIcon();
    const std::string poster = FillScreen(program);
    GoTo(3);
    const std::string athan = WaitForAthan(program);
    const auto windows = desktop.WindowsOf(program);
    host.Choose(kReminders);
    const std::string modal = desktop.WaitForAnother(program, windows, 100);
    ExpectOver(modal, poster);
    ExpectOver(athan, modal);
}

TEST_F(StackingTest, ModalWindowComesUpOverTheFullScreen) {
    StatusNotifierHost host(desktop);
    const ChildProcess program = Start();
    host.AwaitIcon();
    const std::string poster = FillScreen(program);
    const auto windows = desktop.WindowsOf(program);
    host.Choose(kReminders);
    const std::string modal = desktop.WaitForAnother(program, windows, 100);
    ExpectOver(modal, poster);
    EXPECT_EQ(OwnerOf(modal), NumberOf(poster));
    desktop.SaveScreen("modal-full-screen");
}

}  // namespace
}  // namespace horavex
