#include "store/settings_defaults.h"

#include "base/int16.h"
#include "store/angle_band.h"
#include "store/location_record.h"
#include "store/settings_record.h"

namespace horavex {

namespace {

constexpr int kSunday = 0;
constexpr int kSaturday = 6;

std::int16_t DaysIntoYear(Date day) {
    return RoundToInt16(day - DateSerial(CivilFromDate(day).year, 1, 1));
}

}  // namespace

DstDays DefaultDstDays(Date today) {
    const int year = CivilFromDate(today).year;
    Date first = DateSerial(year, 4, 1);
    while (Weekday(first) != kSaturday) {
        first += 1.0;
    }
    Date last = DateSerial(year, 10, 31);
    while (Weekday(last) != kSunday) {
        last -= 1.0;
    }
    // The end gets no 1 added: the last day of daylight saving is the Saturday before.
    return {AddInt16(DaysIntoYear(first), 1), DaysIntoYear(last)};
}

void SetDefaultDstDays(Date today, std::int16_t latitude) {
    const DstDays days = DefaultDstDays(today);
    Settings.DstStart = latitude < 0 ? days.second : days.first;
    Settings.DstEnd = latitude < 0 ? days.first : days.second;
}

void ApplyDefaultSettings(Date today) {
    Settings.AthanType = kSoundAthan;
    Settings.QiblaMethod = 1;
    Settings.FajrAngle = AngleBand.middle;
    Settings.AsrRatio = 1.0;
    Settings.AlarmEnabled = 1;
    Settings.AlarmTime = 78;
    SetDefaultDstDays(today, Location.City.Latitude);
    Settings.DstEnabled = 1;
}

}  // namespace horavex
