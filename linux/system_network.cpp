#include "linux/system_network.h"

#include <net/if_arp.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

#include "linux/environment.h"

namespace horavex {

namespace {

namespace fs = std::filesystem;

/// Interfaces with a route, and those with a default route; without the loopback.
struct Routes {
    std::set<std::string> all;
    std::set<std::string> byDefault;

    void Add(const std::string& interface, bool isDefault) {
        if (interface != "lo") {
            all.insert(interface);
            if (isDefault) {
                byDefault.insert(interface);
            }
        }
    }
};

// A route may also be there to say that nothing is to go that way: "unreachable" and its like.
bool Leads(const std::string& flags) {
    constexpr unsigned long kReject = 0x0200;
    return (std::strtoul(flags.c_str(), nullptr, 16) & kReject) == 0;
}

// A line of the kernel's table: interface, destination, gateway, flags, three counts and the mask,
// the addresses in hexadecimal digits.
void ReadRoutes(const std::string& path, Routes& routes) {
    std::ifstream in(path);
    std::string line;
    std::getline(in, line);  // the heading
    while (std::getline(in, line)) {
        std::istringstream words(line);
        std::string interface, destination, gateway, flags, count, mask;
        words >> interface >> destination >> gateway >> flags >> count >> count >> count >> mask;
        if (Leads(flags)) {
            routes.Add(interface, destination == "00000000" && mask == "00000000");
        }
    }
}

// Of the newer protocol: destination and its length come first, the flags and the interface last.
// Each interface has routes of its own to its neighbours, which connect nothing.
void ReadRoutes6(const std::string& path, Routes& routes) {
    const std::string anywhere(32, '0');
    std::ifstream in(path);
    for (std::string line; std::getline(in, line);) {
        std::istringstream words(line);
        std::string destination, length, source, gateway, count, flags, interface;
        words >> destination >> length >> source >> source >> gateway >> count >> count >> count >>
            flags >> interface;
        if (destination == anywhere && length == "00" && Leads(flags)) {
            routes.Add(interface, true);
        }
    }
}

bool IsModem(const std::string& root, const std::string& interface) {
    int type = 0;
    std::ifstream(root + "/sys/class/net/" + interface + "/type") >> type;
    return type == ARPHRD_PPP || interface.starts_with("wwan");
}

bool HasProxy() {
    constexpr const char* kNames[] = {"http_proxy", "https_proxy", "all_proxy",
                                      "HTTP_PROXY", "HTTPS_PROXY", "ALL_PROXY"};
    return std::any_of(std::begin(kNames), std::end(kNames),
                       [](const char* name) { return !Variable(name).empty(); });
}

bool HasDialler(const std::string& root) {
    return fs::exists(root + "/usr/sbin/pppd") || fs::exists(root + "/usr/sbin/ModemManager");
}

unsigned FlagIf(bool value, ConnectionFlag flag) {
    return value ? flag : 0U;
}

}  // namespace

ConnectionState SystemNetwork::Connection() {
    Routes routes;
    ReadRoutes(root_ + "/proc/net/route", routes);
    ReadRoutes6(root_ + "/proc/net/ipv6_route", routes);
    const auto isModem = [this](const std::string& name) { return IsModem(root_, name); };
    const bool isConnected = !routes.byDefault.empty();
    const unsigned flags =
        FlagIf(std::any_of(routes.all.begin(), routes.all.end(), isModem), kModemConnection) |
        FlagIf(!std::all_of(routes.all.begin(), routes.all.end(), isModem), kLanConnection) |
        FlagIf(HasProxy(), kProxyConnection) | FlagIf(HasDialler(root_), kRasInstalled) |
        FlagIf(!isConnected, kConnectionOffline) |
        FlagIf(!routes.all.empty(), kConnectionConfigured);
    return {isConnected, flags};
}

}  // namespace horavex
