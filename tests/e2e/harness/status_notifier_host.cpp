#include "e2e/harness/status_notifier_host.h"

#include <stdexcept>

#include "support/build_folder.h"

namespace horavex {

namespace {

constexpr const char* kItem = "/StatusNotifierItem";
constexpr const char* kMenu = "/MenuBar";

// The tool prints an entry's number on the line before its properties: "int32 12".
std::string NumberBefore(const std::string& printed, std::size_t place) {
    const std::string mark = "int32 ";
    const std::size_t at = printed.rfind(mark, place);
    return printed.substr(at + mark.size(), printed.find('\n', at) - at - mark.size());
}

}  // namespace

StatusNotifierHost::StatusNotifierHost(const TestDesktop& desktop)
    : desktop_(desktop), service_({BuildPath("bin/status_notifier_watcher")}, desktop.variables) {}

std::string StatusNotifierHost::Call(const std::string& object, const std::string& method,
                                     const std::vector<std::string>& arguments) const {
    std::vector<std::string> words = {"dbus-send",       "--session", "--print-reply",
                                      "--dest=" + icon_, object,      method};
    words.insert(words.end(), arguments.begin(), arguments.end());
    return desktop_.Use(words);
}

std::string StatusNotifierHost::PropertyOf(const std::string& name) const {
    return Call(kItem, "org.freedesktop.DBus.Properties.Get",
                {"string:org.kde.StatusNotifierItem", "string:" + name});
}

void StatusNotifierHost::Activate() const {
    Call(kItem, "org.kde.StatusNotifierItem.Activate", {"int32:0", "int32:0"});
}

std::string StatusNotifierHost::Menu() const {
    Call(kMenu, "com.canonical.dbusmenu.AboutToShow", {"int32:0"});
    return Call(kMenu, "com.canonical.dbusmenu.GetLayout",
                {"int32:0", "int32:-1", "array:string:label,enabled,toggle-state"});
}

void StatusNotifierHost::Choose(const std::string& caption) const {
    const std::string menu = Menu();
    const std::size_t at = menu.find('"' + caption + '"');
    if (at == std::string::npos) {
        throw std::runtime_error("no entry " + caption + " in " + menu);
    }
    desktop_.Use({"dbus-send", "--session", "--type=method_call", "--dest=" + icon_, kMenu,
                  "com.canonical.dbusmenu.Event", "int32:" + NumberBefore(menu, at),
                  "string:clicked", "variant:int32:0", "uint32:0"});
}

}  // namespace horavex
