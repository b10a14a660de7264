#include "skywindows/crescent_words.h"

#include "calendar/date_words.h"
#include "lang/filled_text.h"
#include "lang/language_pack.h"
#include "lang/pack_direction.h"
#include "skywindows/sky_words.h"

namespace horavex {

namespace {

/// The texts that a pack has for a row of letters, under a name that the letter ends.
template <class Words>
void ReadClasses(const std::string& name, Words& words) {
    char letter = 'A';
    for (std::string& word : words) {
        word = CrescentWord((name + letter++).c_str(), word.c_str());
    }
}

std::string NewMoonOfTheWorld(Date newMoon) {
    const std::string text =
        CrescentWord("NewMoonUniversal", "New moon: {instant}, Universal Time");
    return FilledText(text, "{instant}", SkyDateAndTime({"", {}}, newMoon));
}

}  // namespace

std::string CrescentWord(const char* key, const char* english) {
    return GetLangString("crescent", key, english);
}

ClassWords PackClassWords() {
    ClassWords words;
    ReadClasses("Yallop", words.yallop);
    ReadClasses("Odeh", words.odeh);
    words.beforeNewMoon = CrescentWord("BeforeNewMoon", words.beforeNewMoon.c_str());
    words.moonSetsFirst = CrescentWord("MoonSetsFirst", words.moonSetsFirst.c_str());
    words.noSunset = CrescentWord("NoSunset", words.noSunset.c_str());
    return words;
}

std::string CriterionName(Criterion criterion) {
    return criterion == Criterion::kYallop ? CrescentWord("Yallop", "Yallop")
                                           : CrescentWord("Odeh", "Odeh");
}

std::string CalendarDate(Date day) {
    const CivilDate date = CivilFromDate(day);
    std::string text = SkyWord("DayMonthYear", "{day} {month} {year}");
    text = FilledText(text, "{day}", DayOfMonth(date.day));
    text = FilledText(text, "{month}", GregorianMonthName(date.month));
    return FilledText(text, "{year}", std::to_string(date.year));
}

std::string NewMoonText(const ZoneClock& clock, Date newMoon) {
    return FilledText(CrescentWord("NewMoonHere", "New moon: {instant}"), "{instant}",
                      SkyDateAndTime(clock, newMoon));
}

MapText MapTextOf(const HijriDate& month, const VisibilityMap& map, Criterion criterion) {
    std::string title = CrescentWord(
        "MapTitle", "Crescent of {month} {year}, evening of {date}, criterion of {criterion}");
    title = FilledText(title, "{month}", HijriMonthName(month.month));
    title = FilledText(title, "{year}", std::to_string(month.year));
    title = FilledText(title, "{date}", CalendarDate(map.Day()));
    return {FilledText(title, "{criterion}", CriterionName(criterion)),
            NewMoonOfTheWorld(map.NewMoon()), PackClassWords(), PackRunsFromRight()};
}

}  // namespace horavex
