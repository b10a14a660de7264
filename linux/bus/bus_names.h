#pragma once

namespace horavex {

// Where the running program is found on the session bus; docs/org.horavex.PrayerTimes.xml tells its
// interface.
inline constexpr const char* kBusName = "org.horavex.PrayerTimes";
inline constexpr const char* kBusPath = "/org/horavex/PrayerTimes";
inline constexpr const char* kBusInterface = "org.horavex.PrayerTimes";

}  // namespace horavex
