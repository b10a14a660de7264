#pragma once

#include <cstdint>
#include <string>

namespace horavex {

// Is the machine connected to the internet, and how? Each probe asks the system afresh; the
// answers are flags of -1 and 0.

/// The system's own answer, whatever the bits.
std::int16_t IsOnline();

std::int16_t IsLanConnection();
std::int16_t IsModemConnection();
std::int16_t IsProxyConnection();
std::int16_t IsRasInstalled();

/// The state in sentences for the user. Their full stops do not look at each other: a connection
/// by LAN ends in two, one by modem begins with one.
std::string GetConnectionSummary();

}  // namespace horavex
