#include "skywindows/sky_words.h"

#include "base/rounding.h"
#include "base/script.h"
#include "calendar/date_words.h"
#include "lang/filled_text.h"
#include "lang/language_pack.h"
#include "lang/pack_number.h"
#include "platform/platform.h"

namespace horavex {

namespace {

constexpr const char* kNoTime = "--:--";

/// A text of the pack with the parts of an instant's date in their places.
std::string DateIn(const std::string& text, const ZoneClock& clock, Date universal) {
    const CivilDate date = CivilFromDate(clock.MinuteOf(universal));
    const std::string day = FilledText(text, "{day}", DayOfMonth(date.day));
    return FilledText(FilledText(day, "{month}", GregorianMonthName(date.month)), "{year}",
                      std::to_string(date.year));
}

std::string WithTime(const std::string& day, const ZoneClock& clock, Date universal) {
    return day + "  " + KeptTogether(SkyTime(clock, universal), day);
}

}  // namespace

std::string SkyWord(const char* key, const char* english) {
    return GetLangString("sky", key, english);
}

std::string SkyTime(const ZoneClock& clock, const std::optional<Date>& universal) {
    return universal ? Ports().formats.MediumTime(clock.MinuteOf(*universal)) : kNoTime;
}

std::string SkyDate(const ZoneClock& clock, Date universal) {
    return DateIn(SkyWord("DayMonth", "{day} {month}"), clock, universal);
}

std::string SkyDayAndTime(const ZoneClock& clock, Date universal) {
    return WithTime(SkyDate(clock, universal), clock, universal);
}

std::string SkyDateAndTime(const ZoneClock& clock, Date universal) {
    return WithTime(DateIn(SkyWord("DayMonthYear", "{day} {month} {year}"), clock, universal),
                    clock, universal);
}

std::string DegreesText(double degrees) {
    return PackNumber(RoundToPlaces(degrees, 1)) + "\u00b0";
}

std::string DegreesIn(const std::string& text, double degrees) {
    return KeptTogether(DegreesText(degrees), text);
}

std::string ShapeName(MoonShape shape) {
    struct Name {
        const char* key;
        const char* english;
    };
    constexpr Name kNames[] = {
        {"NewMoon", "New moon"},           {"WaxingCrescent", "Waxing crescent"},
        {"FirstQuarter", "First quarter"}, {"WaxingGibbous", "Waxing gibbous moon"},
        {"FullMoon", "Full moon"},         {"WaningGibbous", "Waning gibbous moon"},
        {"LastQuarter", "Last quarter"},   {"WaningCrescent", "Waning crescent"}};
    const Name& name = kNames[static_cast<int>(shape)];
    return SkyWord(name.key, name.english);
}

}  // namespace horavex
