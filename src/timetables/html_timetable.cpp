#include "timetables/html_timetable.h"

#include "base/markup.h"
#include "base/rounding.h"
#include "lang/own_digits.h"

namespace horavex {

namespace {

constexpr const char* kStyle = R"css(
:root { color-scheme: light dark; --line: #b9c3cf; --soft: #eef3f8; --mark: #1e4876; }
@media (prefers-color-scheme: dark) { :root { --line: #46566a; --soft: #1d2733; --mark: #8fbbe8; } }
body { font: 16px/1.4 system-ui, "Noto Sans", "DejaVu Sans", sans-serif; margin: 0 auto;
  max-width: 60rem; padding: 1rem; }
h1 { font-size: 1.5rem; margin: 0; }
.place { font-size: 1.2rem; margin: 0 0 .5rem; }
section { margin-top: 1.5rem; }
caption { color: var(--mark); font-size: 1.2rem; font-weight: 600; text-align: start; }
dl { display: flex; flex-wrap: wrap; gap: .25rem 1.5rem; margin: 0 0 1rem; }
dl div { display: flex; gap: .4rem; }
dd { margin: 0; font-weight: 600; }
nav ol { display: flex; flex-wrap: wrap; gap: .25rem .75rem; list-style: none; padding: 0; }
.wide { overflow-x: auto; }
table { border-collapse: collapse; width: 100%; font-variant-numeric: tabular-nums; }
th, td { border-bottom: 1px solid var(--line); padding: .2rem .5rem; text-align: start;
  white-space: nowrap; }
thead th { border-bottom: 2px solid var(--mark); }
tbody th { font-weight: normal; }
.friday { background: var(--soft); font-weight: 600; }
[aria-current] { outline: 2px solid var(--mark); outline-offset: -2px; }
@media print {
  body { font-size: 9.5pt; max-width: none; padding: 0; }
  nav { display: none; }
  section { break-after: page; }
  section:last-of-type { break-after: auto; }
  tr { break-inside: avoid; }
}
)css";

/// A text for readers, in the digits that they chose.
std::string Escaped(const std::string& text) {
    return EscapedForMarkup(InShownDigits(text));
}

/// Name, value: a value without words runs from left to right in every language.
std::string Fact(const TimetableWords& words, const std::string& name, const std::string& value) {
    return "<div><dt>" + Escaped(name + words.colon) + "</dt><dd dir=\"auto\">" + Escaped(value) +
           "</dd></div>\n";
}

std::string Facts(const Timetable& table, const TimetableWords& words) {
    const auto [ishaName, ishaValue] = IshaFact(table, words);
    return "<dl>\n" + Fact(words, words.latitude, words.DegreesIn(table.latitude)) +
           Fact(words, words.longitude, words.DegreesIn(table.longitude)) +
           Fact(words, words.zone, ZoneFact(table, words)) +
           Fact(words, words.fajrAngle, words.DegreesIn(table.fajrAngle)) +
           Fact(words, ishaName, ishaValue) +
           Fact(words, words.asrRatio, words.NumberIn(table.asrRatio) + ":1") +
           Fact(words, words.qibla, words.DegreesIn(RoundToPlaces(table.qiblaDegrees, 1))) +
           "</dl>\n";
}

std::string MonthId(int month) {
    return "month-" + std::to_string(month);
}

std::string Contents(const Timetable& table, const TimetableWords& words) {
    std::string items;
    for (int month = 1; month <= 12; ++month) {
        items += "<li><a href=\"#" + MonthId(month) + "\">" + Escaped(words.MonthAlone(month)) +
                 "</a></li>\n";
    }
    return "<nav aria-label=\"" + Escaped(std::to_string(table.year)) + "\"><ol>\n" + items +
           "</ol></nav>\n";
}

std::string HeadCell(const std::string& text) {
    return "<th scope=\"col\">" + Escaped(text) + "</th>";
}

std::string TableHead(const TimetableDay& day, const TimetableWords& words) {
    std::string cells = HeadCell(words.day) + HeadCell(words.hijri);
    for (const std::string& name : words.Heads(day)) {
        cells += HeadCell(name);
    }
    return "<thead><tr>" + cells + "</tr></thead>\n";
}

std::string TimeCell(const TimetableDay& day, const std::optional<Moment>& moment,
                     const TimetableWords& words) {
    if (!moment) {
        return "<td></td>";
    }
    const DayMinute at = MinuteOf(day.date, moment->hours);
    return "<td><time datetime=\"" + IsoDate(CivilFromDate(at.day)) + "T" + IsoTime(at.minute) +
           "\" dir=\"auto\">" + Escaped(words.TimeIn(day, *moment)) + "</time></td>";
}

std::string RowAttributes(const TimetableDay& day, Date today) {
    constexpr int kFriday = 5;
    return std::string(Weekday(day.date) == kFriday ? " class=\"friday\"" : "") +
           (day.date == today ? " aria-current=\"date\"" : "");
}

std::string Row(const TimetableDay& day, const TimetableWords& words, Date today) {
    const std::string number = Escaped(std::to_string(CivilFromDate(day.date).day));
    const std::string mark = day.change == DaylightChange::kNone ? "" : " *";
    std::string cells = "<th scope=\"row\">" + number + " " + Escaped(words.WeekdayOf(day.date)) +
                        mark + "</th><td>" + Escaped(words.HijriText(day.hijri)) + "</td>";
    for (const auto& moment : day.Columns()) {
        cells += TimeCell(day, moment, words);
    }
    return "<tr" + RowAttributes(day, today) + ">" + cells + "</tr>\n";
}

std::string Footnotes(const Timetable& table, std::span<const TimetableDay> days,
                      const TimetableWords& words) {
    std::string notes;
    for (const TimetableDay& day : days) {
        if (day.change != DaylightChange::kNone) {
            const bool begins = day.change == DaylightChange::kBegins;
            notes += "<p>* " + Escaped(std::to_string(CivilFromDate(day.date).day)) + words.colon +
                     Escaped(begins ? words.daylightBegins : words.daylightEnds) + "</p>\n";
        }
    }
    for (const std::string& note : NotesOfDays(table, days)) {
        notes += "<p>" + Escaped(note) + "</p>\n";
    }
    return notes;
}

std::string Month(const Timetable& table, const TimetableWords& words, int month, Date today) {
    const std::span<const TimetableDay> days = DaysOfMonth(table, month);
    const std::string title = Escaped(words.MonthTitle(table.year, month));
    std::string rows;
    for (const TimetableDay& day : days) {
        rows += Row(day, words, today);
    }
    return "<section id=\"" + MonthId(month) + "\">\n<div class=\"wide\"><table>\n<caption>" +
           title + "</caption>\n" + TableHead(days.front(), words) + "<tbody>\n" + rows +
           "</tbody></table></div>\n" + Footnotes(table, days, words) + "</section>\n";
}

}  // namespace

std::string HtmlTimetable(const Timetable& table, const TimetableWords& words, Date today) {
    const std::string title = Escaped(words.title + " " + std::to_string(table.year));
    std::string months;
    for (int month = 1; month <= 12; ++month) {
        months += Month(table, words, month, today);
    }
    return "<!DOCTYPE html>\n<html lang=\"" + Escaped(words.code) + "\" dir=\"" +
           (words.rightToLeft ? "rtl" : "ltr") + "\">\n<head>\n<meta charset=\"utf-8\">\n" +
           "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<title>" +
           title + words.comma + Escaped(table.place) + "</title>\n<style>" + kStyle +
           "</style>\n</head>\n<body>\n<header>\n<h1>" + title + "</h1>\n<p class=\"place\"><bdi>" +
           Escaped(table.place) + "</bdi></p>\n" + Facts(table, words) + "</header>\n" +
           Contents(table, words) + "<main>\n" + months + "</main>\n</body>\n</html>\n";
}

}  // namespace horavex
