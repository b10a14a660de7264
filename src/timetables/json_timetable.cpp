#include "timetables/json_timetable.h"

#include <cstdio>
#include <string_view>

#include "engine/moment_text.h"

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

std::string Boolean(bool value) {
    return value ? "true" : "false";
}

/// The hours of the settings. A zone of its own stands by its name, with the offset of the year's
/// first day.
std::string ZoneValue(const Timetable& table) {
    if (table.zoneName.empty()) {
        return PlainNumber(table.timeZone);
    }
    const TimetableDay& first = table.days.front();
    return "{" + Member("name", Quoted(table.zoneName)) + "," +
           Member("offset", PlainNumber(first.offset)) + "," +
           Member("daylight", Boolean(first.daylight)) + "}";
}

std::string RuleWord(HighLatitudeRule rule) {
    return option::kHighLatitudeRule.words[static_cast<std::size_t>(rule)];
}

/// Where it counts instead of the angle.
std::string IshaInterval(const Timetable& table) {
    return table.ishaInterval == 0
               ? ""
               : Member("ishaInterval", std::to_string(table.ishaInterval)) + ",\n" +
                     Member("ishaIntervalRamadan", std::to_string(table.ishaIntervalRamadan)) +
                     ",\n";
}

std::string HeadMembers(const Timetable& table) {
    return Member("year", std::to_string(table.year)) + ",\n" +
           Member("place", Quoted(table.place)) + ",\n" +
           Member("latitude", PlainNumber(table.latitude)) + ",\n" +
           Member("longitude", PlainNumber(table.longitude)) + ",\n" +
           Member("timeZone", ZoneValue(table)) + ",\n" +
           Member("fajrAngle", PlainNumber(table.fajrAngle)) + ",\n" +
           Member("ishaAngle", PlainNumber(table.ishaAngle)) + ",\n" + IshaInterval(table) +
           Member("asrRatio", PlainNumber(table.asrRatio)) + ",\n" +
           Member("qibla", PlainNumber(table.qiblaDegrees)) + ",\n" +
           Member("method", table.method.empty() ? "null" : Quoted(table.method)) + ",\n" +
           Member("highLatitudeRule", Quoted(RuleWord(table.highLatitude))) + ",\n";
}

std::string HijriObject(const HijriDate& hijri) {
    return "{" + Member("year", std::to_string(hijri.year)) + "," +
           Member("month", std::to_string(hijri.month)) + "," +
           Member("day", std::to_string(hijri.day)) + "}";
}

std::string TimesObject(const TimetableDay& day) {
    std::string members;
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        const auto& moment = day.moments[prayer];
        members +=
            (prayer == 0 ? "" : ",") +
            Member(kPrayerKeys[prayer],
                   moment ? Quoted(IsoTime(MinuteOf(day.date, moment->hours).minute)) : "null");
    }
    return "{" + members + "}";
}

std::string HoursArray(const TimetableDay& day) {
    std::string items;
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        const auto& moment = day.moments[prayer];
        items += (prayer == 0 ? "" : ",") + (moment ? PlainNumber(moment->hours) : "null");
    }
    return "[" + items + "]";
}

std::string LocalValue(const Timetable& table, const TimetableDay& day,
                       const std::optional<Moment>& moment) {
    if (!moment) {
        return "null";
    }
    const double offset = OffsetOf(table, day, day.date + moment->hours / 24.0);
    return Quoted(IsoMoment(day.date, moment->hours, offset));
}

std::string MomentsArray(const Timetable& table, const TimetableDay& day) {
    std::string items;
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        const auto& moment = day.moments[prayer];
        items += (prayer == 0 ? "{" : ",{") + Member("prayer", Quoted(kPrayerKeys[prayer])) + "," +
                 Member("local", LocalValue(table, day, moment)) + "," +
                 Member("by", Quoted(WordOf(moment.value_or(Moment{}).by))) + "}";
    }
    return "[" + items + "]";
}

std::string AroundArray(const Timetable& table, const TimetableDay& day) {
    std::string items;
    for (std::size_t time = 0; time < day.around.size(); ++time) {
        const auto& moment = day.around[time];
        items += (time == 0 ? "{" : ",{") + Member("time", Quoted(kAroundKeys[time])) + "," +
                 Member("local", LocalValue(table, day, moment)) + "," +
                 Member("by", Quoted(WordOf(moment.value_or(Moment{}).by))) + "}";
    }
    return "[" + items + "]";
}

std::string DayObject(const Timetable& table, const TimetableDay& day) {
    return "{" + Member("date", Quoted(IsoDate(CivilFromDate(day.date)))) + "," +
           Member("hijri", HijriObject(day.hijri)) + "," +
           Member("daylight", Boolean(day.daylight)) + "," + Member("times", TimesObject(day)) +
           "," + Member("hours", HoursArray(day)) + "," +
           Member("moments", MomentsArray(table, day)) +
           (day.around.empty() ? "" : "," + Member("around", AroundArray(table, day))) + "}";
}

}  // namespace

std::string JsonTimetable(const Timetable& table) {
    std::string days;
    for (const TimetableDay& day : table.days) {
        days += (days.empty() ? "" : ",\n") + DayObject(table, day);
    }
    return "{" + HeadMembers(table) + Member("days", "[\n" + days + "\n]") + "}\n";
}

}  // namespace horavex
