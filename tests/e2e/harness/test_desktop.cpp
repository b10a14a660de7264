#include "e2e/harness/test_desktop.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <sstream>
#include <stdexcept>

#include "e2e/harness/wait_until.h"
#include "support/build_folder.h"
#include "support/bus_configuration.h"
#include "support/registry_values.h"

namespace horavex {

namespace {

namespace fs = std::filesystem;

std::vector<std::string> LinesOf(const std::string& text) {
    std::istringstream in(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);) {
        lines.push_back(line);
    }
    return lines;
}

/// A user's variables: folders of a home, times of the day as in the United States, zone UTC.
Environment UsersVariables(const TemporaryFolder& home) {
    for (const char* folder : {"config", "data", "run"}) {
        fs::create_directory(home / folder);
    }
    fs::permissions(home / "run", fs::perms::owner_all);
    StoreUsersRegistryValue(home / "machine", "Isha Dep Angle", "18");
    return {{"HOME", home.Path()},
            {"PATH", std::getenv("PATH")},
            {"XDG_CONFIG_HOME", home / "config"},
            {"XDG_DATA_HOME", home / "data"},
            {"XDG_CONFIG_DIRS", home / "machine"},
            {"XDG_RUNTIME_DIR", home / "run"},
            {"LANG", "en_US.UTF-8"},
            {"LC_CTYPE", "C.UTF-8"},
            {"TZ", "UTC"}};
}

bool HasManager(const TestDesktop& desktop) {
    return desktop.Use({"xprop", "-root", "_NET_SUPPORTING_WM_CHECK"}).find("0x") !=
           std::string::npos;
}

}  // namespace

TestDesktop::TestDesktop() : variables(UsersVariables(home_)) {
    display_ = std::make_unique<Service>(
        std::vector<std::string>{"Xvfb", "-displayfd", "1", "-screen", "0", "1280x960x24",
                                 "-nolisten", "tcp", "-noreset"},
        variables);
    variables["DISPLAY"] = ":" + display_->FirstLine();
    bus_ = std::make_unique<Service>(
        std::vector<std::string>{"dbus-daemon", "--nofork", "--print-address=1",
                                 "--config-file=" + WriteBusConfiguration(home_ / "run")},
        variables);
    variables["DBUS_SESSION_BUS_ADDRESS"] = bus_->FirstLine();
    manager_ = std::make_unique<Service>(std::vector<std::string>{"openbox"}, variables);
    WaitUntil("a window manager", [this] { return HasManager(*this); });
}

void TestDesktop::StoreRegistryValue(const std::string& name, const std::string& value) const {
    StoreUsersRegistryValue(home_ / "config", name, value);
}

ChildProcess TestDesktop::Start(const std::string& name) const {
    return {
        {BuildPath("bin/" + name)}, variables, home_ / (name + ".out"), home_ / (name + ".err")};
}

std::string TestDesktop::Use(const std::vector<std::string>& words) const {
    const ProgramRun run = RunCommand(words, variables);
    if (run.status != 0) {
        throw std::runtime_error(words[0] + " failed: " + run.err);
    }
    return run.out;
}

std::vector<std::string> TestDesktop::WindowsOf(const ChildProcess& program) const {
    const std::vector<std::string> search = {"xdotool", "search", "--onlyvisible",
                                             "--all",   "--pid",  std::to_string(program.Id()),
                                             "--name",  ".*"};
    // No match is no failure here. A window that goes while it is looked at ends the search with a
    // complaint, and without the windows behind it.
    return *WaitUntil("a search to its end", [&]() -> std::optional<std::vector<std::string>> {
        const ProgramRun run = RunCommand(search, variables);
        return run.err.empty() ? std::optional(LinesOf(run.out)) : std::nullopt;
    });
}

// An icon in a panel is a window with the program's title, too.
std::string TestDesktop::WaitForWindow(const ChildProcess& program,
                                       const std::string& title) const {
    constexpr int kHigherThanAnIcon = 60;
    return WaitUntil(
               "the window " + title,
               [&]() -> std::optional<std::string> {
                   for (const std::string& window : WindowsOf(program)) {
                       if (TitleOf(window) == title && PlaceOf(window).height > kHigherThanAnIcon) {
                           return window;
                       }
                   }
                   if (!program.IsRunning()) {
                       throw std::runtime_error("the program ended before " + title);
                   }
                   return std::nullopt;
               })
        .value();
}

bool TestDesktop::IsOnView(const ChildProcess& program, const std::string& window) const {
    const auto windows = WindowsOf(program);
    return std::find(windows.begin(), windows.end(), window) != windows.end();
}

std::string TestDesktop::WaitForAnother(const ChildProcess& program,
                                        const std::vector<std::string>& known,
                                        int leastHeight) const {
    return *WaitUntil("another window", [&]() -> std::optional<std::string> {
        for (const std::string& window : WindowsOf(program)) {
            if (std::find(known.begin(), known.end(), window) == known.end() &&
                PlaceOf(window).height >= leastHeight) {
                return window;
            }
        }
        return std::nullopt;
    });
}

// A window may be gone meanwhile: it then has neither title nor size.
std::string TestDesktop::TitleOf(const std::string& window) const {
    const std::string printed = RunCommand({"xdotool", "getwindowname", window}, variables).out;
    return printed.substr(0, printed.find('\n'));
}

ScreenPlace TestDesktop::PlaceOf(const std::string& window) const {
    ScreenPlace place;
    for (const std::string& line :
         LinesOf(RunCommand({"xwininfo", "-id", window}, variables).out)) {
        const auto read = [&line](const std::string& name, int& value) {
            const std::size_t at = line.find(name);
            if (at != std::string::npos) {
                value = std::stoi(line.substr(at + name.size()));
            }
        };
        read("Absolute upper-left X:", place.x);
        read("Absolute upper-left Y:", place.y);
        read("Width:", place.width);
        read("Height:", place.height);
    }
    return place;
}

void TestDesktop::Click(const std::string& window, int x, int y, int button) const {
    Use({"xdotool", "mousemove", "--sync", "--window", window, std::to_string(x), std::to_string(y),
         "click", std::to_string(button)});
}

void TestDesktop::PressKey(const std::string& key) const {
    Use({"xdotool", "key", key});
}

void TestDesktop::ChooseLastEntry(const std::string& menu) const {
    constexpr int kAcross = 30;
    constexpr int kAboveTheLowerEdge = 12;
    Click(menu, kAcross, PlaceOf(menu).height - kAboveTheLowerEdge);
}

void TestDesktop::SaveScreen(const std::string& name) const {
    fs::create_directories(BuildPath("screenshots"));
    Use({"import", "-window", "root", BuildPath("screenshots/" + name + ".png")});
}

std::string TestDesktop::Fingerprint() const {
    return Use({"import", "-window", "root", "-format", "%#", "info:"});
}

}  // namespace horavex
