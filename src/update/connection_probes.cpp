#include "update/connection_probes.h"

#include "base/int16.h"
#include "platform/platform.h"

namespace horavex {

namespace {

std::int16_t FlagOf(bool value) {
    return value ? kTrue : kFalse;
}

std::int16_t Probe(ConnectionFlag bit) {
    return FlagOf((Ports().network.Connection().flags & bit) != 0);
}

}  // namespace

std::int16_t IsOnline() {
    return FlagOf(Ports().network.Connection().isConnected);
}

std::int16_t IsLanConnection() {
    return Probe(kLanConnection);
}

std::int16_t IsModemConnection() {
    return Probe(kModemConnection);
}

std::int16_t IsProxyConnection() {
    return Probe(kProxyConnection);
}

std::int16_t IsRasInstalled() {
    return Probe(kRasInstalled);
}

std::string GetConnectionSummary() {
    const ConnectionState state = Ports().network.Connection();
    if (!state.isConnected) {
        return "No internet connection.";
    }
    std::string summary;
    const auto append = [&](ConnectionFlag bit, const char* piece, const char* otherwise = "") {
        summary += (state.flags & bit) != 0 ? piece : otherwise;
    };
    append(kConnectionConfigured, "Network connection configured.\r\n");
    append(kLanConnection, "Connect via a LAN.");
    append(kProxyConnection, ", and uses a proxy server.", ".");
    append(kModemConnection, "Connect via a Modem.");
    append(kConnectionOffline, "Connection offline.");
    append(kModemBusy, "Modem is busy with a non-Internet connection.");
    append(kRasInstalled, "Remote Access Services are installed.");
    return summary;
}

}  // namespace horavex
