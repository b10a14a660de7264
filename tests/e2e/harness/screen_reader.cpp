#include "e2e/harness/screen_reader.h"

#include <optional>

#include "e2e/harness/wait_until.h"
#include "support/build_folder.h"

namespace horavex {

namespace {

constexpr const char* kServices = "/usr/libexec/at-spi-bus-launcher";

/// The variables of the desktop with one by which the toolkit tells its windows without a listener.
const Environment& WithTellingWindows(TestDesktop& desktop) {
    desktop.variables["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1";
    return desktop.variables;
}

bool Has(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

}  // namespace

ScreenReader::ScreenReader(TestDesktop& desktop)
    : desktop_(desktop),
      services_({kServices, "--launch-immediately"}, WithTellingWindows(desktop)) {
    WaitUntil("services for assistive tools", [&] {
        return Has(
            desktop.Use({"dbus-send", "--session", "--print-reply", "--dest=org.freedesktop.DBus",
                         "/org/freedesktop/DBus", "org.freedesktop.DBus.ListNames"}),
            "org.a11y.Bus");
    });
}

std::string ScreenReader::Tree() const {
    return desktop_.Use({BuildPath("bin/screen_reader"), "tree"});
}

std::string ScreenReader::WaitFor(const std::string& text) const {
    return *WaitUntil("what is read: " + text, [&]() -> std::optional<std::string> {
        const std::string tree = Tree();
        return Has(tree, text) ? std::optional(tree) : std::nullopt;
    });
}

HeardChanges::HeardChanges(const TestDesktop& desktop)
    : listener_({BuildPath("bin/screen_reader"), "changes"}, desktop.variables) {
    listener_.FirstLine();
}

void HeardChanges::WaitFor(const std::string& text) const {
    WaitUntil("a change: " + text, [&] { return Has(listener_.Printed(), text); });
}

}  // namespace horavex
