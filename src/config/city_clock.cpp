#include "config/city_clock.h"

#include "base/fault.h"
#include "platform/platform.h"
#include "store/city_zones.h"
#include "store/options.h"
#include "store/settings_files.h"
#include "store/settings_record.h"

namespace horavex {

namespace {

std::string NameOrNone(std::int16_t cityIndex) {
    std::string name;
    RunStep([&] { name = ZoneNameOf(cityIndex); });
    return name;
}

}  // namespace

std::string ZoneNameOf(std::int16_t cityIndex) {
    const std::string name = ReadOption(option::kZoneName);
    return name.empty() ? CityZones().Of(cityIndex) : name;
}

CityClock StateOfCityClock(std::int16_t cityIndex) {
    if (NameOrNone(cityIndex).empty()) {
        return CityClock::kNoZone;
    }
    const bool known = CityHoursOn(cityIndex, Ports().clock.Today()).has_value();
    return known ? CityClock::kKnown : CityClock::kNotInDatabase;
}

std::optional<ZoneYear> FindCityZone(std::int16_t cityIndex) {
    try {
        return FindZoneYear(Ports().zoneRules, NameOrNone(cityIndex), Ports().clock.Today());
    } catch (const UnknownZoneFault&) {
        return std::nullopt;
    }
}

std::optional<double> CityHoursOn(std::int16_t cityIndex, Date day) {
    const ZoneRules& rules = Ports().zoneRules;
    const std::string name = NameOrNone(cityIndex);
    try {
        return rules.OffsetAt(name, MomentOf(rules, name, day + 0.5)).seconds / 3600.0;
    } catch (const UnknownZoneFault&) {
        return std::nullopt;
    }
}

void KeepAcceptedZone() {
    if (ReadOption(option::kAutomaticZone) == 0) {
        return;
    }
    const auto zone = FindCityZone(ActiveSettings.CityIndex);
    if (!zone) {
        return;
    }
    SettingsRecord kept = ActiveSettings;
    TakeZoneYear(*zone, kept);
    if (kept != ActiveSettings) {
        ActiveSettings = kept;
        RunStep(SaveActiveSettings);
    }
}

}  // namespace horavex
