#include "timetables/ics_timetable.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "base/rounding.h"
#include "base/text.h"
#include "base/utf8.h"
#include "engine/moment_text.h"

namespace horavex {

namespace {

constexpr std::size_t kLongestLine = 75;  // bytes, the line's end not counted

/// One content line, folded where it is too long; a fold never splits a character.
std::string Line(std::string_view content) {
    std::string lines;
    std::size_t room = kLongestLine;
    while (content.size() > room) {
        const std::string_view part = Utf8Prefix(content, room);
        lines += std::string(part) + "\r\n ";
        content.remove_prefix(part.size());
        room = kLongestLine - 1;  // the blank that marks a fold
    }
    return lines + std::string(content) + "\r\n";
}

std::string EscapedText(std::string_view text) {
    std::string escaped;
    for (const char c : text) {
        if (c == '\n') {
            escaped += "\\n";
            continue;
        }
        if (c == '\\' || c == ';' || c == ',') {
            escaped += '\\';
        }
        escaped += c;
    }
    return escaped;
}

/// "20261121".
std::string CompactDate(Date date) {
    std::string text = IsoDate(CivilFromDate(date));
    std::erase(text, '-');
    return text;
}

/// "20261121T053100". seconds: of the day.
std::string CompactMoment(Date day, int seconds) {
    char time[16];
    std::snprintf(time, sizeof time, "T%02d%02d%02d", seconds / 3600, seconds / 60 % 60,
                  seconds % 60);
    return CompactDate(day) + time;
}

/// "+0545", with seconds where the hours have some.
std::string OffsetText(double hours) {
    const int seconds = NearestInt(std::clamp(hours, -24.0, 24.0) * 3600.0);
    const int size = std::abs(seconds);
    char text[16];
    std::snprintf(text, sizeof text, size % 60 == 0 ? "%c%02d%02d" : "%c%02d%02d%02d",
                  seconds < 0 ? '-' : '+', size / 3600, size / 60 % 60, size % 60);
    return text;
}

/// Hundredths of a degree with their sign.
std::string Hundredths(double degrees) {
    char text[16];
    std::snprintf(text, sizeof text, "%+05d", static_cast<int>(RoundHalfEven(degrees * 100.0)));
    return text;
}

std::string PlaceId(const Timetable& table) {
    return Hundredths(table.latitude) + Hundredths(table.longitude);
}

double HoursOf(const Timetable& table, bool daylight) {
    return table.timeZone + (daylight ? 1.0 : 0.0);
}

/// Another clock has another name, since a calendar may keep the zones of earlier imports: year,
/// offset on the first of January and the days on which it changes.
std::string ZoneId(const Timetable& table) {
    std::string id = "Horavex/" + std::to_string(table.year) + "/" +
                     OffsetText(HoursOf(table, table.days.front().daylight));
    for (const TimetableDay& day : table.days) {
        if (day.change != DaylightChange::kNone) {
            id += "/" + CompactDate(day.date).substr(4);
        }
    }
    return id;
}

/// A clock that begins on a day, which it rules from its first minute on. Wound back, it shows the
/// hour before its midnight twice: the first counts, which belongs to the evening.
std::string Observance(const Timetable& table, Date day, bool before, bool after) {
    const char* kind = after ? "DAYLIGHT" : "STANDARD";
    const int onset = before && !after ? 3600 : 0;  // told by the clock that ends
    return Line(std::string("BEGIN:") + kind) + Line("DTSTART:" + CompactMoment(day, onset)) +
           Line("TZOFFSETFROM:" + OffsetText(HoursOf(table, before))) +
           Line("TZOFFSETTO:" + OffsetText(HoursOf(table, after))) +
           Line(std::string("END:") + kind);
}

std::string ZoneComponent(const Timetable& table) {
    const bool first = table.days.front().daylight;
    std::string zone = Line("BEGIN:VTIMEZONE") + Line("TZID:" + ZoneId(table)) +
                       Observance(table, table.days.front().date, first, first);
    for (std::size_t row = 1; row < table.days.size(); ++row) {
        const bool before = table.days[row - 1].daylight;
        const bool after = table.days[row].daylight;
        if (before != after) {
            zone += Observance(table, table.days[row].date, before, after);
        }
    }
    return zone + Line("END:VTIMEZONE");
}

std::string Alarm(const std::string& text) {
    return Line("BEGIN:VALARM") + Line("ACTION:DISPLAY") + Line("TRIGGER:PT0S") +
           Line("DESCRIPTION:" + EscapedText(text)) + Line("END:VALARM");
}

/// What each event of a file says alike.
struct EventContext {
    const Timetable& table;
    const TimetableWords& words;
    std::string stampLine;
    std::string placeLines;
    std::string idSuffix;
};

EventContext MakeContext(const Timetable& table, const TimetableWords& words, Date stamp) {
    return {table, words,
            Line("DTSTAMP:" + CompactMoment(std::floor(stamp), SecondOfDay(stamp)) + "Z"),
            Line("LOCATION:" + EscapedText(table.place)) +
                Line("GEO:" + PlainNumber(table.latitude) + ";" + PlainNumber(table.longitude)),
            PlaceId(table) + "@horavex.invalid"};
}

/// The settings' clock stands in the file. An event by a zone of its own is told in Universal Time,
/// which no reader's zones can get wrong.
std::string StartLine(const Timetable& table, const TimetableDay& day, const DayMinute& start) {
    if (table.zone.empty()) {
        return Line("DTSTART;TZID=" + ZoneId(table) + ":" +
                    CompactMoment(start.day, start.minute * 60));
    }
    const double offset = OffsetOf(table, day, start.day + start.minute / 1440.0);
    const DayMinute universal = MinuteOf(start.day, start.minute / 60.0 - offset);
    return Line("DTSTART:" + CompactMoment(universal.day, universal.minute * 60) + "Z");
}

/// The name with its mark, and what that means.
std::string SummaryLines(const std::string& name, const Moment& moment, HighLatitudeRule rule) {
    const std::string note = RuleNote({&moment, 1}, rule);
    return note.empty() ? Line("SUMMARY:" + EscapedText(name))
                        : Line("SUMMARY:" + EscapedText(name) + " " + kRuleMark) +
                              Line("DESCRIPTION:" + EscapedText(note));
}

std::string Event(const EventContext& context, const TimetableDay& day, std::size_t prayer) {
    const Moment& moment = *day.moments[prayer];
    const std::string& name = context.words.prayers[prayer];
    const std::string id = CompactDate(day.date) + "-" + AsciiLower(kPrayerKeys[prayer]);
    return Line("BEGIN:VEVENT") + Line("UID:" + id + context.idSuffix) + context.stampLine +
           StartLine(context.table, day, MinuteOf(day.date, moment.hours)) +
           SummaryLines(name, moment, context.table.highLatitude) + context.placeLines +
           Line("TRANSP:TRANSPARENT") + (prayer == kShurooq ? "" : Alarm(name)) +
           Line("END:VEVENT");
}

std::string Events(const EventContext& context) {
    std::string events;
    for (const TimetableDay& day : context.table.days) {
        for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
            events += day.moments[prayer] ? Event(context, day, prayer) : "";
        }
    }
    return events;
}

}  // namespace

std::string IcsTimetable(const Timetable& table, const TimetableWords& words, Date stamp) {
    const std::string name = words.title + words.comma + table.place;
    return Line("BEGIN:VCALENDAR") + Line("VERSION:2.0") +
           Line("PRODID:-//Horavex//Prayer times//EN") + Line("CALSCALE:GREGORIAN") +
           Line("X-WR-CALNAME:" + EscapedText(name)) +
           (table.zone.empty() ? ZoneComponent(table) : "") +
           Events(MakeContext(table, words, stamp)) + Line("END:VCALENDAR");
}

}  // namespace horavex
