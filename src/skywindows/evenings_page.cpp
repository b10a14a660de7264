#include "skywindows/evenings_page.h"

#include "base/number_text.h"
#include "base/rounding.h"
#include "base/script.h"
#include "calendar/date_words.h"
#include "lang/filled_text.h"
#include "lang/language_pack.h"
#include "lang/pack_number.h"
#include "skywindows/crescent_words.h"
#include "skywindows/sky_words.h"
#include "timetables/timetable_words.h"

namespace horavex {

namespace {

constexpr double kMinutesPerDay = 24.0 * 60.0;
constexpr const char* kNothing = "\u2013";

std::vector<std::string> EveningHeads() {
    return {CrescentWord("Evening", "Evening"),   CrescentWord("Sunset", "Sunset"),
            CrescentWord("Moonset", "Moonset"),   CrescentWord("Lag", "Lag"),
            CrescentWord("Age", "Age"),           CrescentWord("Elongation", "Elongation"),
            CrescentWord("Altitude", "Altitude"), CrescentWord("ArcOfVision", "Arc of vision"),
            CrescentWord("Width", "Width"),       CriterionName(Criterion::kYallop),
            CriterionName(Criterion::kOdeh)};
}

std::string PlacesText(double value, int places) {
    return PackNumber(RoundToPlaces(value, places));
}

/// A text of the pack with a number in the place of its mark.
std::string WithNumber(const std::string& text, const char* mark, const std::string& number) {
    return FilledText(text, mark, KeptTogether(number, text));
}

std::string LagText(const CrescentEvening& evening) {
    const auto lag = evening.Lag();
    return lag ? WithNumber(GetLangString("adjustments", "Minutes", "{minutes} min"), "{minutes}",
                            NumberToText(RoundHalfEven(*lag * kMinutesPerDay)))
               : kNothing;
}

std::string AgeText(const CrescentEvening& evening) {
    return WithNumber(CrescentWord("Hours", "{hours} h"), "{hours}", PlacesText(evening.age, 1));
}

/// "18 February": the line above the table has the year.
std::string EveningDate(Date day) {
    const CivilDate date = CivilFromDate(day);
    return FilledText(
        FilledText(SkyWord("DayMonth", "{day} {month}"), "{day}", DayOfMonth(date.day)), "{month}",
        GregorianMonthName(date.month));
}

/// "A  easily visible", or why no criterion is asked.
std::string ClassText(const ClassWords& words, EveningKind kind, const CrescentEvening& evening,
                      Criterion criterion) {
    if (kind != EveningKind::kJudged) {
        return words.Of(kind);
    }
    const char letter = evening.Of(criterion).letter;
    return FilledText(FilledText(CrescentWord("ClassInWords", "{class}  {meaning}"), "{class}",
                                 std::string(1, letter)),
                      "{meaning}", words.Of(criterion, letter));
}

std::vector<std::string> CellsOf(const DatedEvening& evening, const ZoneClock& clock,
                                 EveningKind kind) {
    const ClassWords words = PackClassWords();
    const CrescentEvening& crescent = *evening.crescent;
    return {EveningDate(evening.day),
            SkyTime(clock, crescent.sunset),
            SkyTime(clock, crescent.moonset),
            LagText(crescent),
            AgeText(crescent),
            DegreesText(crescent.topocentric.light),
            DegreesText(crescent.moonAltitude),
            DegreesText(crescent.topocentric.vision),
            PlacesText(crescent.topocentric.width, 2) + "\u2032",
            ClassText(words, kind, crescent, Criterion::kYallop),
            ClassText(words, kind, crescent, Criterion::kOdeh)};
}

/// An evening without a sunset, in the words of its last column.
std::vector<std::string> CellsWithoutSunset(const DatedEvening& evening) {
    std::vector<std::string> cells(EveningHeads().size());
    cells.front() = EveningDate(evening.day);
    cells.back() = PackClassWords().noSunset;
    return cells;
}

}  // namespace

SkyPage EveningsPage(const MonthEvenings& month, const SkyPlace& place, std::size_t current) {
    SkyPage page{EveningHeads(), {}, "", {1, 2, 3, 4, 5, 6, 7, 8}};
    for (const DatedEvening& evening : month.evenings) {
        const EveningKind kind = KindOf(evening.crescent, month.newMoon);
        const bool isCurrent = page.rows.size() == current;
        page.rows.push_back(
            {evening.crescent ? CellsOf(evening, place.clock, kind) : CellsWithoutSunset(evening),
             false, isCurrent});
    }
    return page;
}

SkyPage FirstDaysPage(const FirstDays& days) {
    const TimetableWords words = TakeTimetableWords();
    const std::string unseen = CrescentWord("OnNone", "on none of these days");
    const std::string unpublished = CrescentWord("NotPublished", "not in the table");
    const auto row = [&](const char* key, const char* english, const std::optional<Date>& day,
                         const std::string& none) {
        return Grid::Row{{CrescentWord(key, english), day ? words.DayTitle(*day) : none}};
    };
    return {{CrescentWord("Way", "The month begins by"), CrescentWord("FirstDay", "First day")},
            {row("YallopNakedEye", "Yallop, naked eye", days.yallop.nakedEye, unseen),
             row("YallopAided", "Yallop, optical aid", days.yallop.aided, unseen),
             row("OdehNakedEye", "Odeh, naked eye", days.odeh.nakedEye, unseen),
             row("OdehAided", "Odeh, optical aid", days.odeh.aided, unseen),
             row("UmmAlQura", "Umm al-Qura", days.ummAlQura, unpublished),
             row("Arithmetic", "Arithmetic calendar", days.arithmetic, unpublished)},
            ""};
}

}  // namespace horavex
