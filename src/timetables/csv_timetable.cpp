#include "timetables/csv_timetable.h"

namespace horavex {

namespace {

constexpr const char* kLineEnd = "\r\n";

std::string Head() {
    std::string line = "Date,Hijri";
    for (const char* prayer : kPrayerKeys) {
        line += std::string(",") + prayer;
    }
    return line + ",Daylight" + kLineEnd;
}

// No field holds a comma, a quote or a line's end, so that none is quoted.
std::string DayLine(const TimetableDay& day) {
    std::string line = IsoDate(CivilFromDate(day.date)) + "," + IsoDate(day.hijri);
    for (const auto& hours : day.hours) {
        line += "," + (hours ? IsoTime(MinuteOf(day.date, *hours).minute) : "");
    }
    return line + (day.daylight ? ",1" : ",0") + kLineEnd;
}

}  // namespace

std::string CsvTimetable(const Timetable& table) {
    std::string text = Head();
    for (const TimetableDay& day : table.days) {
        text += DayLine(day);
    }
    return text;
}

}  // namespace horavex
