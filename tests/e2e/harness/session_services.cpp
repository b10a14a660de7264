#include "e2e/harness/session_services.h"

#include <algorithm>
#include <optional>
#include <sstream>

#include "e2e/harness/wait_until.h"
#include "support/build_folder.h"
#include "support/bus_configuration.h"

namespace horavex {

namespace {

/// The variables of the desktop with those of a system bus.
const Environment& WithSystemBus(TestDesktop& desktop, const Service& bus) {
    desktop.variables["DBUS_SYSTEM_BUS_ADDRESS"] = bus.FirstLine();
    return desktop.variables;
}

std::string NumberIn(const std::string& line) {
    std::istringstream in(line);
    std::string number;
    in >> number >> number;
    return "uint32:" + number;
}

}  // namespace

SessionServices::SessionServices(TestDesktop& desktop)
    : desktop_(desktop),
      system_({"dbus-daemon", "--nofork", "--print-address=1",
               "--config-file=" + WriteBusConfiguration(folder_.Path())},
              desktop.variables),
      services_({BuildPath("bin/session_services")}, WithSystemBus(desktop, system_)) {
    services_.FirstLine();
}

std::vector<std::string> SessionServices::Lines() const {
    std::istringstream in(services_.Printed());
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);) {
        lines.push_back(line);
    }
    return lines;
}

std::vector<std::string> SessionServices::LinesOf(const std::string& beginning) const {
    std::vector<std::string> lines = Lines();
    std::erase_if(lines, [&](const std::string& line) { return !line.starts_with(beginning); });
    return lines;
}

std::string SessionServices::WaitFor(const std::string& beginning) const {
    return *WaitUntil("a line that begins " + beginning, [&]() -> std::optional<std::string> {
        const std::vector<std::string> lines = LinesOf(beginning);
        return lines.empty() ? std::nullopt : std::optional(lines.back());
    });
}

void SessionServices::Press(const std::string& line, const std::string& button) const {
    Call("Press", {NumberIn(line), "string:" + button});
}

void SessionServices::PutAway(const std::string& line) const {
    Call("PutAway", {NumberIn(line)});
}

void SessionServices::TellSleep(bool begins) const {
    Call("Sleep", {begins ? "boolean:true" : "boolean:false"});
}

void SessionServices::Call(const std::string& method,
                           const std::vector<std::string>& arguments) const {
    std::vector<std::string> words = {"dbus-send",           "--session", "--print-reply",
                                      "--dest=test.Session", "/user",     "test.User." + method};
    words.insert(words.end(), arguments.begin(), arguments.end());
    desktop_.Use(words);
}

}  // namespace horavex
