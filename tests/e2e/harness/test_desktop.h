#pragma once

#include <memory>
#include <string>
#include <vector>

#include "e2e/harness/service.h"
#include "support/child_process.h"
#include "support/temporary_folder.h"

namespace horavex {

/// A place on the screen, in its dots.
struct ScreenPlace {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

/// A desktop for one test: a display with a window manager, a session bus, and a user whose home
/// folder is empty. The machine has a stored setting for all users, so that a start is no first
/// run.
class TestDesktop {
    TemporaryFolder home_;

public:
    TestDesktop();

    /// The variables of the programs that are started here; to be changed before their start.
    Environment variables;

    /// The path of a name in the user's home folder.
    std::string operator/(const std::string& name) const { return home_ / name; }

    /// Stores a value of the user's registry, in place of all that are there.
    void StoreRegistryValue(const std::string& name, const std::string& value) const;

    /// The session bus ends, as by a crash.
    void EndBus() { bus_.reset(); }

    /// Starts a program of the build.
    ChildProcess Start(const std::string& name) const;

    /// Runs a tool to its end and returns what it prints. Throws where the tool fails.
    std::string Use(const std::vector<std::string>& words) const;

    /// Windows on view of a program, by the display's numbers.
    std::vector<std::string> WindowsOf(const ChildProcess& program) const;
    /// Waits for the window on view with this title.
    std::string WaitForWindow(const ChildProcess& program, const std::string& title) const;
    bool IsOnView(const ChildProcess& program, const std::string& window) const;
    /// Waits for a window on view that is none of those, and returns it.
    std::string WaitForAnother(const ChildProcess& program, const std::vector<std::string>& known,
                               int leastHeight = 1) const;
    /// The same for a menu; tips, which are lower, may come and go.
    std::string WaitForMenu(const ChildProcess& program,
                            const std::vector<std::string>& known) const {
        constexpr int kHigherThanATip = 60;
        return WaitForAnother(program, known, kHigherThanATip);
    }

    std::string TitleOf(const std::string& window) const;
    ScreenPlace PlaceOf(const std::string& window) const;

    /// A click at a place of the window, in dots from its upper left corner.
    void Click(const std::string& window, int x, int y, int button = 1) const;
    void PressKey(const std::string& key) const;
    /// Clicks the last entry of a menu. A key could come before the menu has the keyboard.
    void ChooseLastEntry(const std::string& menu) const;

    /// A picture of the whole screen in the build's folder "screenshots", for people to look at.
    void SaveScreen(const std::string& name) const;
    /// Sum of the screen's content, for comparisons.
    std::string Fingerprint() const;

    /// What the program's standard error got, by its name.
    std::string ErrorsOf(const std::string& name) const {
        return ContentOf(home_ / (name + ".err"));
    }

private:
    std::unique_ptr<Service> display_;
    std::unique_ptr<Service> manager_;
    std::unique_ptr<Service> bus_;
};

}  // namespace horavex
