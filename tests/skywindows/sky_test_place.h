#pragma once

#include "linux/erfa_almanac.h"
#include "skywindows/sky_place.h"

namespace horavex {

/// Mecca, three hours ahead of Greenwich in every season.
inline SkyPlace MeccaSky() {
    SettingsRecord record;
    record.TimeZone = 3;
    return {"Mecca", {21.4225, 39.8262}, {"", record}};
}

/// An instant of 2026 in Universal Time.
inline Date In2026(int month, int day, int hour, int minute) {
    return DateSerial(2026, month, day) + TimeSerial(hour, minute, 0);
}

}  // namespace horavex
