#include "config/computer_zone.h"

#include <algorithm>
#include <vector>

#include "base/int16.h"
#include "base/number_text.h"
#include "config/settings_display.h"
#include "platform/platform.h"
#include "store/settings_record.h"
#include "windows/horavex_main_form.h"

namespace horavex {

namespace {

constexpr double kDaylightHour = 1.0;

std::vector<ClockOffset> OffsetsOfYear(Date today) {
    const int year = CivilFromDate(today).year;
    std::vector<ClockOffset> offsets;
    for (Date day = DateSerial(year, 1, 1); day < DateSerial(year + 1, 1, 1); day += 1.0) {
        offsets.push_back(Ports().clock.OffsetOn(day));
    }
    return offsets;
}

/// The two offsets of a year that is half daylight saving and half not, whichever of them the
/// zone's data mark; some call their winter the exception.
bool HasDaylightHour(const std::vector<ClockOffset>& offsets, double lowest) {
    const bool marked = std::ranges::any_of(offsets, &ClockOffset::daylight);
    return marked && std::ranges::all_of(offsets, [&](const ClockOffset& offset) {
               return offset.hours == lowest || offset.hours == lowest + kDaylightHour;
           });
}

std::int16_t NumberOf(std::size_t index) {
    return ToInt16(static_cast<std::int64_t>(index) + 1);
}

/// Days whose clock is ahead, taken round the year: the first behind one that is not, and the
/// last of that run.
void FindDays(const std::vector<ClockOffset>& offsets, ComputerZone& zone) {
    const std::size_t days = offsets.size();
    const auto ahead = [&](std::size_t day) { return offsets[day % days].hours > zone.hours; };
    for (std::size_t day = 0; day < days; ++day) {
        if (ahead(day) && !ahead(day + days - 1)) {
            std::size_t last = day;
            while (ahead(last + 1)) {
                ++last;
            }
            zone.daylight = true;
            zone.dstStart = NumberOf(day);
            zone.dstEnd = NumberOf(last % days);
            return;
        }
    }
}

/// A control that stands already where it is put writes nothing; what is shown counts all the same.
void WriteShownDaylight() {
    const SettingsForm& form = *HoravexMainForm;
    Settings.DstEnabled = ToInt16(form.chkDayLT.Value());
    if (Settings.DstEnabled == 1) {
        Settings.DstStart = ToInt16(form.hsBegin.Value() + 1);
        Settings.DstEnd = ToInt16(form.hsEnd.Value() + 1);
    }
    sub0602();
    sub06C6();
    sub071C();
}

}  // namespace

ComputerZone FindComputerZone(Date today) {
    const std::vector<ClockOffset> offsets = OffsetsOfYear(today);
    const double lowest = std::ranges::min(offsets, {}, &ClockOffset::hours).hours;
    if (!HasDaylightHour(offsets, lowest)) {
        return {.hours = Ports().clock.OffsetOn(today).hours};
    }
    ComputerZone zone{.hours = lowest};
    FindDays(offsets, zone);
    return zone;
}

void UseComputerZone() {
    const ComputerZone zone = FindComputerZone(Ports().clock.Today());
    SettingsForm& form = *HoravexMainForm;
    form.txtTimeZone.SetText(SignedFixedText(zone.hours, Ports().formats.DecimalMark()));
    form.chkDayLT.SetValue(zone.daylight ? 1 : 0);
    if (zone.daylight) {
        form.hsBegin.SetValue(zone.dstStart - 1);
        form.hsEnd.SetValue(zone.dstEnd - 1);
    }
    WriteShownDaylight();
}

}  // namespace horavex
