#include "shell/face_place.h"

#include <algorithm>
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

/// Letters of the Arabic language alone. The names do not tell their language, and Persian, Urdu
/// and Uyghur have the same script and letters besides.
bool IsArabic(const std::string& name) {
    const auto letters = DecodeUtf8(name);
    return letters && std::ranges::all_of(*letters, [](char32_t letter) {
               return (letter >= 0x621 && letter <= 0x63A) ||
                      (letter >= 0x641 && letter <= 0x64A) || letter == U' ' || letter == U'-';
           });
}

/// The first of a city's other names in a script; empty where none is.
std::string NameInScript(std::int16_t cityIndex, Script script) {
    static const Script arabic = ScriptOf("\u0627");
    for (const std::string& name : Split(OtherNamesOf(cityIndex), ',')) {
        if (ScriptOf(name) == script && (script != arabic || IsArabic(name))) {
            return name;
        }
    }
    return {};
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
