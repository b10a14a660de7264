#include "timetables/timetable_words.h"

#include "base/number_text.h"
#include "calendar/date_words.h"
#include "engine/moment_text.h"
#include "lang/capital.h"
#include "lang/filled_text.h"
#include "lang/language_pack.h"
#include "lang/pack_direction.h"
#include "lang/pack_number.h"

namespace horavex {

namespace {

constexpr const char* kWeekdays[] = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                     "Thursday", "Friday", "Saturday"};

std::string Word(const std::string& key, const std::string& english) {
    return GetLangString("timetables", key, english);
}

std::string NumberedWord(const char* key, std::size_t number, const std::string& english) {
    return Word(key + std::to_string(number), english);
}

void TakeNames(TimetableWords& words) {
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        words.prayers[prayer] = Word(kPrayerKeys[prayer], kPrayerKeys[prayer]);
    }
    for (std::size_t time = 0; time < kAroundCount; ++time) {
        words.around[time] = AroundName(time);
    }
    for (std::size_t month = 0; month < 12; ++month) {
        const auto number = static_cast<int>(month) + 1;
        words.months[month] = GregorianMonthName(number);
        words.shortMonths[month] = NumberedWord("ShortMonth", month + 1, words.months[month]);
        words.hijriMonths[month] = HijriMonthName(number);
    }
    for (std::size_t weekday = 0; weekday < 7; ++weekday) {
        words.weekdays[weekday] = NumberedWord("Weekday", weekday, kWeekdays[weekday]);
    }
}

void TakeForms(TimetableWords& words) {
    words.monthPattern = Word("MonthTitle", "{month} {year}");
    words.dayPattern = Word("DayTitle", "{weekday}, {day} {month} {year}");
    words.minutesPattern = GetLangString("adjustments", "Minutes", "{minutes} min");
    words.colon = Word("Colon", ": ");
    words.comma = Word("Comma", ", ");
    words.decimalMark = PackDecimalMark();
    words.hasClockOf24Hours = Word("Clock", "12") == "24";
}

std::string MonthIn(const std::string& pattern, const std::string& month, int year) {
    return FilledText(FilledText(pattern, "{month}", month), "{year}", std::to_string(year));
}

}  // namespace

std::string TimetableWords::MonthAlone(int month) const {
    return WithCapital(months.at(static_cast<std::size_t>(month) - 1));
}

std::string TimetableWords::MonthBriefly(int month) const {
    return WithCapital(shortMonths.at(static_cast<std::size_t>(month) - 1));
}

std::string TimetableWords::MonthInLine(int year, int month) const {
    return MonthIn(monthPattern, months.at(static_cast<std::size_t>(month) - 1), year);
}

std::string TimetableWords::MonthTitle(int year, int month) const {
    return WithCapital(MonthInLine(year, month));
}

std::string TimetableWords::DayTitle(Date date) const {
    const CivilDate civil = CivilFromDate(date);
    const std::string& month = months.at(static_cast<std::size_t>(civil.month) - 1);
    const std::string line =
        FilledText(MonthIn(dayPattern, month, civil.year), "{day}", DayOfMonth(civil.day));
    return WithCapital(FilledText(line, "{weekday}", WeekdayOf(date)));
}

std::string TimetableWords::HijriText(const HijriDate& date) const {
    return HijriDateText({std::to_string(date.day),
                          hijriMonths.at(static_cast<std::size_t>(date.month) - 1),
                          std::to_string(date.year)});
}

const std::string& TimetableWords::WeekdayOf(Date date) const {
    return weekdays.at(static_cast<std::size_t>(Weekday(date)));
}

std::vector<std::string> TimetableWords::Heads(const TimetableDay& filled) const {
    std::vector<std::string> heads(prayers.begin(), prayers.end());
    if (!filled.around.empty()) {
        heads.insert(heads.end(), around.begin(), around.end());
    }
    return heads;
}

std::string TimetableWords::NumberIn(double value) const {
    return NumberToText(value, decimalMark);
}

std::string TimetableWords::DegreesIn(double degrees) const {
    return NumberIn(degrees) + "°";
}

std::string TimetableWords::TimeIn(const TimetableDay& timesOf, const Moment& moment) const {
    return hasClockOf24Hours
               ? CellWithMarks(IsoTime(MinuteOf(timesOf.date, moment.hours).minute), moment)
               : MomentCell(moment);
}

TimetableWords TakeTimetableWords() {
    TimetableWords words;
    words.code = Word("Code", "en");
    words.rightToLeft = PackRunsFromRight();
    words.title = Word("Title", "Prayer times");
    words.day = Word("Day", "Day");
    words.hijri = Word("Hijri", "Hijri date");
    words.latitude = Word("Latitude", "Latitude");
    words.longitude = Word("Longitude", "Longitude");
    words.zone = Word("Zone", "Time zone");
    words.fajrAngle = Word("FajrAngle", "Fajr angle");
    words.ishaAngle = Word("IshaAngle", "Isha angle");
    words.asrRatio = Word("AsrRatio", "Asr ratio");
    words.qibla = Word("Qibla", "Qibla, clockwise from north");
    words.daylightBegins = Word("Begins", "Daylight saving begins on this day");
    words.daylightEnds = Word("Ends", "Daylight saving ends with this day");
    words.monthPage = Word("MonthPage", "Month");
    words.yearPage = Word("YearPage", "Year");
    TakeNames(words);
    TakeForms(words);
    return words;
}

std::string ZoneFact(const Timetable& table, const TimetableWords& words) {
    return "GMT " + SignedFixedText(table.timeZone, words.decimalMark) +
           (table.zoneName.empty() ? "" : ", " + table.zoneName);
}

std::pair<std::string, std::string> IshaFact(const Timetable& table, const TimetableWords& words) {
    if (table.ishaInterval == 0) {
        return {words.ishaAngle, words.DegreesIn(table.ishaAngle)};
    }
    const auto minutes = [&words](int count) {
        return FilledText(words.minutesPattern, "{minutes}", std::to_string(count));
    };
    const std::string ramadan =
        table.ishaIntervalRamadan > 0
            ? " (" + words.hijriMonths[8] + words.colon + minutes(table.ishaIntervalRamadan) + ")"
            : "";
    return {words.prayers[kIsha],
            words.prayers[kMaghrib] + " + " + minutes(table.ishaInterval) + ramadan};
}

}  // namespace horavex
