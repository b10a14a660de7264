#include "ctl/day_text.h"

#include <iomanip>
#include <sstream>

#include "base/plain_text.h"
#include "calendar/date_words.h"
#include "ctl/basis.h"
#include "engine/moment_text.h"
#include "engine/next_prayer.h"
#include "engine/ruled_year.h"
#include "geo/qibla.h"
#include "platform/platform.h"
#include "timetables/timetable.h"

namespace horavex {

namespace {

constexpr const char* kBold = "\x1b[1m";
constexpr const char* kPlain = "\x1b[0m";

std::string PrayerLine(const DayView& day, std::size_t prayer, bool highlight) {
    const bool next = static_cast<std::int16_t>(prayer) == day.next.prayer;
    std::ostringstream line;
    line << (next && highlight ? kBold : "") << (next ? "  > " : "    ") << std::left
         << std::setw(10) << kPrayerKeys[prayer] << MomentText(day.moments[prayer])
         << (next && highlight ? kPlain : "") << '\n';
    return line.str();
}

}  // namespace

std::string DayText(const DayView& day, bool highlight) {
    const RegionalFormats& formats = Ports().formats;
    std::string text = WithoutControls(
        day.place + "\n" + formats.LongDate(day.date) + "   " + formats.LongTime(day.now) + "\n" +
        std::to_string(day.hijri.day) + " " + HijriMonthName(day.hijri.month) + " " +
        std::to_string(day.hijri.year) + "\n\n");
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        text += PrayerLine(day, prayer, highlight);
    }
    const std::string note = RuleNote(day.moments, RuledYear.rules.moments.highLatitude);
    text += WithoutControls(note.empty() ? "" : note + "\n");
    return text + WithoutControls("\nNext: " + NextPrayerSentence(day.next) +
                                  "\nRemaining: " + RemainingText(day.next.remainingSeconds) +
                                  "\n" + QiblaText + "\n" + BasisText(day.now));
}

}  // namespace horavex
