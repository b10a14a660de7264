#include "ctl/day_view.h"

#include <cmath>
#include <iomanip>
#include <sstream>

#include "ctl/plain_text.h"
#include "engine/current_year.h"
#include "geo/qibla.h"
#include "platform/platform.h"
#include "store/location_record.h"
#include "timetables/timetable.h"

namespace horavex {

namespace {

constexpr const char* kBold = "\x1b[1m";
constexpr const char* kPlain = "\x1b[0m";

std::size_t RowOf(Date today) {
    return static_cast<std::size_t>(today - DateSerial(CurrentYear, 1, 1));
}

std::string PrayerLine(const DayView& view, std::size_t prayer, bool highlight) {
    const bool next = static_cast<std::int16_t>(prayer) == view.next.prayer;
    std::ostringstream line;
    line << (next && highlight ? kBold : "") << (next ? "  > " : "    ") << std::left
         << std::setw(10) << kPrayerKeys[prayer]
         << Ports().formats.MediumTime(view.hours[prayer] / 24.0)
         << (next && highlight ? kPlain : "") << '\n';
    return line.str();
}

}  // namespace

DayView TakeDayView() {
    const Date now = Ports().clock.Now();
    const std::size_t row = RowOf(std::floor(now));
    const PrayerRow hours = TimesOfRow(row);
    return {now, hours, HijriToday(), DescribeNextPrayer(FindNextPrayer(hours, now), row, now)};
}

int SecondsLeft(const DayView& view) {
    return SecondOfDay(view.next.secondsFromNow / kSecondsPerDay);
}

std::string DayText(const DayView& view, bool highlight) {
    const RegionalFormats& formats = Ports().formats;
    std::string text = WithoutControls(CityText + "\n" + formats.LongDate(view.now) + "   " +
                                       formats.LongTime(view.now) + "\n" + view.hijri.day + " " +
                                       view.hijri.monthName + " " + view.hijri.year + "\n\n");
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        text += PrayerLine(view, prayer, highlight);
    }
    return text + WithoutControls("\nNext: " + view.next.sentence +
                                  "\nRemaining: " + RemainingText(view.next.secondsFromNow) + "\n" +
                                  QiblaText + "\n");
}

}  // namespace horavex
