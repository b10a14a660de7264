#include "timetables/timetable_words.h"

#include "base/number_text.h"
#include "calendar/date_words.h"
#include "engine/moment_text.h"
#include "lang/language_pack.h"

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
        words.months[month] = NumberedWord("Month", month + 1, MonthName(number));
        words.hijriMonths[month] = HijriMonthName(number);
    }
    for (std::size_t weekday = 0; weekday < 7; ++weekday) {
        words.weekdays[weekday] = NumberedWord("Weekday", weekday, kWeekdays[weekday]);
    }
}

}  // namespace

std::string TimetableWords::MonthTitle(int year, int month) const {
    return months.at(static_cast<std::size_t>(month) - 1) + " " + std::to_string(year);
}

std::string TimetableWords::HijriText(const HijriDate& date) const {
    return std::to_string(date.day) + " " +
           hijriMonths.at(static_cast<std::size_t>(date.month) - 1) + " " +
           std::to_string(date.year);
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

TimetableWords TakeTimetableWords() {
    TimetableWords words;
    words.code = Word("Code", "en");
    words.rightToLeft = Word("Direction", "ltr") == "rtl";
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
    return words;
}

std::pair<std::string, std::string> IshaFact(const Timetable& table, const TimetableWords& words) {
    if (table.ishaInterval > 0) {
        const bool differs = table.ishaIntervalRamadan > 0;
        const std::string ramadan = differs
                                        ? " (" + words.hijriMonths[8] + ": " +
                                              std::to_string(table.ishaIntervalRamadan) + " min)"
                                        : "";
        return {words.prayers[kIsha], words.prayers[kMaghrib] + " + " +
                                          std::to_string(table.ishaInterval) + " min" + ramadan};
    }
    return {words.ishaAngle, NumberToText(table.ishaAngle) + "°"};
}

}  // namespace horavex
