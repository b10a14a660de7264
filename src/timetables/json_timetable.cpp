#include "timetables/json_timetable.h"

#include <cstdio>
#include <string_view>

namespace horavex {

namespace {

std::string Escaped(char c) {
    if (c == '"' || c == '\\') {
        return {'\\', c};
    }
    if (c >= 0 && c < ' ') {
        char text[8];
        std::snprintf(text, sizeof text, "\\u%04x", static_cast<unsigned>(c));
        return text;
    }
    return {c};
}

std::string Quoted(std::string_view text) {
    std::string quoted = "\"";
    for (const char c : text) {
        quoted += Escaped(c);
    }
    return quoted + "\"";
}

std::string Member(std::string_view key, const std::string& value) {
    return Quoted(key) + ":" + value;
}

std::string HeadMembers(const Timetable& table) {
    return Member("year", std::to_string(table.year)) + ",\n" +
           Member("place", Quoted(table.place)) + ",\n" +
           Member("latitude", PlainNumber(table.latitude)) + ",\n" +
           Member("longitude", PlainNumber(table.longitude)) + ",\n" +
           Member("timeZone", PlainNumber(table.timeZone)) + ",\n" +
           Member("fajrAngle", PlainNumber(table.fajrAngle)) + ",\n" +
           Member("ishaAngle", PlainNumber(table.ishaAngle)) + ",\n" +
           Member("asrRatio", PlainNumber(table.asrRatio)) + ",\n" +
           Member("qibla", PlainNumber(table.qiblaDegrees)) + ",\n";
}

std::string HijriObject(const HijriDate& hijri) {
    return "{" + Member("year", std::to_string(hijri.year)) + "," +
           Member("month", std::to_string(hijri.month)) + "," +
           Member("day", std::to_string(hijri.day)) + "}";
}

std::string TimesObject(const TimetableDay& day) {
    std::string members;
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        const auto& hours = day.hours[prayer];
        members += (prayer == 0 ? "" : ",") +
                   Member(kPrayerKeys[prayer],
                          hours ? Quoted(IsoTime(MinuteOf(day.date, *hours).minute)) : "null");
    }
    return "{" + members + "}";
}

std::string HoursArray(const TimetableDay& day) {
    std::string items;
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        const auto& hours = day.hours[prayer];
        items += (prayer == 0 ? "" : ",") + (hours ? PlainNumber(*hours) : "null");
    }
    return "[" + items + "]";
}

std::string DayObject(const TimetableDay& day) {
    return "{" + Member("date", Quoted(IsoDate(CivilFromDate(day.date)))) + "," +
           Member("hijri", HijriObject(day.hijri)) + "," +
           Member("daylight", day.daylight ? "true" : "false") + "," +
           Member("times", TimesObject(day)) + "," + Member("hours", HoursArray(day)) + "}";
}

}  // namespace

std::string JsonTimetable(const Timetable& table) {
    std::string days;
    for (const TimetableDay& day : table.days) {
        days += (days.empty() ? "" : ",\n") + DayObject(day);
    }
    return "{" + HeadMembers(table) + Member("days", "[\n" + days + "\n]") + "}\n";
}

}  // namespace horavex
