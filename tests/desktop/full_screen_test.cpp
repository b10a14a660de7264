#include "desktop/ports/full_screen.h"

#include <gtest/gtest.h>

#include "desktop/ports/display.h"
#include "desktop/private_bus.h"

namespace horavex {
namespace {

/// A display without a window manager: the test tells what one would.
class FullScreenWindowTest : public testing::Test {
protected:
    FullScreenWindowTest() {
        EXPECT_TRUE(Until([this] { return ContentOf(folder / "out").ends_with('\n'); }));
        const std::string number = ContentOf(folder / "out");
        display = xcb_connect((":" + number.substr(0, number.find('\n'))).c_str(), nullptr);
        root = xcb_setup_roots_iterator(xcb_get_setup(display)).data->root;
        window = xcb_generate_id(display);
        xcb_create_window(display, XCB_COPY_FROM_PARENT, window, root, 0, 0, 100, 100, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    }

    ~FullScreenWindowTest() override { xcb_disconnect(display); }

    void Set(xcb_window_t of, const char* property, xcb_atom_t type,
             const std::vector<std::uint32_t>& values) const {
        xcb_change_property(display, XCB_PROP_MODE_REPLACE, of, AtomOf(display, property), type, 32,
                            static_cast<std::uint32_t>(values.size()), values.data());
    }

    void SetActive(xcb_window_t active) const {
        Set(root, "_NET_ACTIVE_WINDOW", XCB_ATOM_WINDOW, {active});
    }

    void SetStates(const std::vector<std::string>& names) const {
        std::vector<std::uint32_t> states;
        for (const std::string& name : names) {
            states.push_back(AtomOf(display, name));
        }
        Set(window, "_NET_WM_STATE", XCB_ATOM_ATOM, states);
    }

    TemporaryFolder folder;
    ChildProcess server{
        {"Xvfb", "-displayfd", "1", "-screen", "0", "640x480x24", "-nolisten", "tcp", "-noreset"},
        {},
        folder / "out",
        folder / "err"};
    xcb_connection_t* display = nullptr;
    xcb_window_t root = XCB_WINDOW_NONE;
    xcb_window_t window = XCB_WINDOW_NONE;
};

TEST_F(FullScreenWindowTest, ThereIsNoneWithoutAWindowManager) {
    EXPECT_EQ(FullScreenWindow(display), std::nullopt);
}

TEST_F(FullScreenWindowTest, IsTheActiveOneWhileItFillsTheScreen) {
    SetActive(window);
    EXPECT_EQ(FullScreenWindow(display), std::nullopt);
    SetStates({"_NET_WM_STATE_ABOVE", "_NET_WM_STATE_FULLSCREEN"});
    EXPECT_EQ(FullScreenWindow(display), window);
    SetStates({"_NET_WM_STATE_MAXIMIZED_VERT", "_NET_WM_STATE_MAXIMIZED_HORZ"});
    EXPECT_EQ(FullScreenWindow(display), std::nullopt);
}

TEST_F(FullScreenWindowTest, IsNoneBehindAnotherActiveWindow) {
    SetStates({"_NET_WM_STATE_FULLSCREEN"});
    SetActive(XCB_WINDOW_NONE);
    EXPECT_EQ(FullScreenWindow(display), std::nullopt);
}

TEST_F(FullScreenWindowTest, WindowThatIsGoneIsNone) {
    SetStates({"_NET_WM_STATE_FULLSCREEN"});
    SetActive(window);
    xcb_destroy_window(display, window);
    EXPECT_EQ(FullScreenWindow(display), std::nullopt);
}

}  // namespace
}  // namespace horavex
