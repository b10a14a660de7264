#include "shell/face_place.h"

#include <tuple>

#include "base/fault.h"
#include "base/program_state.h"
#include "base/script.h"
#include "base/text.h"
#include "base/utf8.h"
#include "config/automatic_zone.h"
#include "engine/ruled_year.h"
#include "engine/zone_spans.h"
#include "lang/language_pack.h"
#include "platform/platform.h"
#include "store/city_names.h"
#include "store/location_files.h"
#include "store/location_record.h"
#include "store/settings_record.h"

namespace horavex {

namespace {

/// A text that is made anew only for another place or language: the face is told at each tick.
struct ToldPlace {
    std::string language;
    std::string place;
    std::string text;
};
ToldPlace told;

const ProgramStateReset reset([] { told = {}; });

/// Coordinates of one's own leave the number of the city before them.
bool IsListed(std::int16_t cityIndex) {
    LocationRecord listed;
    LookupLocation(cityIndex, listed);
    const CityRecord& city = ActiveLocation.City;
    return std::tie(listed.City.Name, listed.City.Latitude, listed.City.Longitude) ==
           std::tie(city.Name, city.Latitude, city.Longitude);
}

// The names do not tell their language, and Persian, Uyghur and others share the script with these
// two: a name is taken for one of the language if it has no letter that the language has not.
constexpr std::u32string_view kArabicLetters = U"ءآأؤإئابةتثجحخدذرزسشصضطظعغفقكلمنهوىي -";
constexpr std::u32string_view kUrduLetters = U"ءآأؤئابپتٹثجچحخدڈذرڑزژسشصضطظعغفقکگلمنںوہۂۃھیے -";
constexpr std::u32string_view kLettersOfUrduAlone = U"ٹڈڑںہۂۃے";

/// How well a name fits the language of the pack; 0 where it is of another.
int FitOf(const std::string& name) {
    static const Script arabic = ScriptOf("\u0627");
    if (ScriptOf(name) != arabic) {
        return 1;
    }
    const bool isUrdu = GetLangString("timetables", "Code", "") == "ur";
    const std::u32string letters = DecodeUtf8(name).value();
    if (letters.find_first_not_of(isUrdu ? kUrduLetters : kArabicLetters) != letters.npos) {
        return 0;
    }
    return isUrdu && letters.find_first_of(kLettersOfUrduAlone) != letters.npos ? 2 : 1;
}

/// The one of a city's other names in a script that fits best, the first of equals; empty where
/// none does.
std::string NameInScript(std::int16_t cityIndex, Script script) {
    std::string best;
    int fitOfBest = 0;
    for (const std::string& name : Split(OtherNamesOf(cityIndex), ',')) {
        const int fit = ScriptOf(name) == script ? FitOf(name) : 0;
        if (fit > fitOfBest) {
            best = name;
            fitOfBest = fit;
        }
    }
    return best;
}

std::string OwnName() {
    const Script script = ScriptOf(GetLangString("timetables", "Title", ""));
    const std::int16_t city = ActiveSettings.CityIndex;
    return script != kLatinScript && IsListed(city) ? NameInScript(city, script) : "";
}

}  // namespace

std::string PlaceOfFace() {
    if (told.language != currentLanguage || told.place != ActiveCityText) {
        std::string name;
        RunStep([&] { name = OwnName(); });
        told = {currentLanguage, ActiveCityText,
                name.empty() ? ActiveCityText : name + " \u00b7 " + ActiveCityText};
    }
    return told.text;
}

std::string ClocksOfFace() {
    const std::vector<ZoneSpan>& zone = RuledYear.rules.moments.zone;
    if (zone.empty()) {
        return {};
    }
    const Date today = Ports().clock.Today();
    return ClocksText(Ports().clock.OffsetOn(today).hours, SpanOfLocal(zone, today + 0.5).hours,
                      ActiveLocation.City.Name, ActiveSettings.Language);
}

}  // namespace horavex
