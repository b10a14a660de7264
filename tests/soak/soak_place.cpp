#include "soak/soak_place.h"

#include "store/city_search.h"
#include "store/settings_files.h"
#include "store/stored_values.h"
#include "support/built_files.h"

namespace horavex {

namespace {

constexpr double kAngle = 18.0;  // degrees

std::int16_t CityNamed(const std::string& text) {
    return SearchCities(ListCities(), text).at(0).city->cityIndex;
}

void StoreSettings(const SoakPlace& place) {
    LoadActiveSettings();
    ActiveSettings.Language = 1;
    ActiveSettings.CityIndex = CityNamed(place.city);
    ActiveSettings.TimeZone = place.hours;
    ActiveSettings.FajrAngle = kAngle;
    ActiveSettings.AthanType = kSoundAthan;
    ActiveSettings.DstEnabled = place.dstStart != 0 ? 1 : 0;
    ActiveSettings.DstStart = place.dstStart;
    ActiveSettings.DstEnd = place.dstEnd;
    SaveActiveSettings();
    Settings = ActiveSettings;
    SaveWorkingSettings();
    IshaAngle = kAngle;
    SaveIshaAngle();
    SaveOption(option::kAutomaticZone, place.automaticZone ? 1 : 0);
    SaveOption(option::kHighLatitudeRule, place.rule);
}

}  // namespace

const std::vector<SoakPlace>& SoakPlaces() {
    static const std::vector<SoakPlace> places = {
        {.name = "Plain",
         .city = "Madrid",
         .zone = "Europe/Madrid",
         .hours = 1.0,
         .dstStart = 88,
         .dstEnd = 298},
        {.name = "Wrapped",
         .city = "Sydney",
         .zone = "Australia/Sydney",
         .hours = 10.0,
         .dstStart = 277,
         .dstEnd = 95},
        {.name = "Ramadan",
         .city = "Casablanca",
         .zone = "Africa/Casablanca",
         .hours = 1.0,
         .automaticZone = true},
        {.name = "PastMidnight",
         .city = "Paris",
         .zone = "Europe/Paris",
         .hours = 1.0,
         .automaticZone = true,
         .rule = HighLatitudeRule::kMiddle},
        {.name = "Fails",
         .city = "Tromsø",
         .zone = "Europe/Oslo",
         .hours = 1.0,
         .automaticZone = true},
    };
    return places;
}

SoakStore StoreOf(const SoakPlace& place) {
    TestPlatform platform;
    platform.files = BuiltFiles();
    StoreSettings(place);
    return {platform.files, platform.registry};
}

}  // namespace horavex
