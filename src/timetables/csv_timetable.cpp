#include "timetables/csv_timetable.h"

#include <algorithm>

namespace horavex {

namespace {

constexpr const char* kLineEnd = "\r\n";

bool HasMark(const Moment& moment) {
    return moment.by == MomentBy::kRule || moment.dayShift != 0;
}

bool HasMarks(const Timetable& table) {
    return std::ranges::any_of(table.days, [](const TimetableDay& day) {
        return std::ranges::any_of(day.moments,
                                   [](const auto& moment) { return moment && HasMark(*moment); });
    });
}

/// "Fajr:rule Isha:rule Isha:+1".
std::string Marks(const TimetableDay& day) {
    std::string marks;
    const auto add = [&](std::size_t prayer, const char* mark) {
        marks += (marks.empty() ? "" : " ") + std::string(kPrayerKeys[prayer]) + ":" + mark;
    };
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        const Moment moment = day.moments[prayer].value_or(Moment{});
        if (moment.by == MomentBy::kRule) {
            add(prayer, "rule");
        }
        if (moment.dayShift != 0) {
            add(prayer, moment.dayShift > 0 ? "+1" : "-1");
        }
    }
    return marks;
}

// No field holds a comma, a quote or a line's end, so that none is quoted.
std::string DayLine(const TimetableDay& day, bool marks) {
    std::string line = IsoDate(CivilFromDate(day.date)) + "," + IsoDate(day.hijri);
    for (const auto& moment : day.moments) {
        line += "," + (moment ? IsoTime(MinuteOf(day.date, moment->hours).minute) : "");
    }
    return line + (day.daylight ? ",1" : ",0") + (marks ? "," + Marks(day) : "") + kLineEnd;
}

}  // namespace

std::string CsvHead(bool marks) {
    std::string line = "Date,Hijri";
    for (const char* prayer : kPrayerKeys) {
        line += std::string(",") + prayer;
    }
    return line + ",Daylight" + (marks ? ",Marks" : "") + kLineEnd;
}

std::string CsvDays(const Timetable& table, bool marks, const std::string& first) {
    std::string text;
    for (const TimetableDay& day : table.days) {
        text += first;
        text += DayLine(day, marks);
    }
    return text;
}

std::string CsvTimetable(const Timetable& table) {
    const bool marks = HasMarks(table);
    return CsvHead(marks) + CsvDays(table, marks, "");
}

}  // namespace horavex
