#include "fuzz/target.h"

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <stdexcept>
#include <string>

#include "fuzz/targets/targets.h"

namespace horavex {

const std::vector<FuzzTarget>& FuzzTargets() {
    static const std::vector<FuzzTarget> targets = {{"bus_requests", FuzzBusRequests},
                                                    {"city_lists", FuzzCityLists},
                                                    {"coordinates", FuzzCoordinates},
                                                    {"csv", FuzzCsv},
                                                    {"dates", FuzzDates},
                                                    {"hijri_table", FuzzHijriTable},
                                                    {"language_pack", FuzzLanguagePack},
                                                    {"location_files", FuzzLocationFiles},
                                                    {"numbers", FuzzNumbers},
                                                    {"place_lines", FuzzPlaceLines},
                                                    {"registry_file", FuzzRegistryFile},
                                                    {"settings_record", FuzzSettingsRecord},
                                                    {"sound_file", FuzzSoundFile},
                                                    {"text_table", FuzzTextTable},
                                                    {"texts", FuzzTexts},
                                                    {"update_body", FuzzUpdateBody},
                                                    {"zones_and_names", FuzzZonesAndNames}};
    return targets;
}

const FuzzTarget& FindFuzzTarget(std::string_view name) {
    const auto found = std::ranges::find(FuzzTargets(), name, &FuzzTarget::name);
    if (found == FuzzTargets().end()) {
        throw std::runtime_error("no target \"" + std::string(name) + "\"");
    }
    return *found;
}

void Require(bool isKept, std::string_view promise) {
    if (!isKept) {
        std::cerr << "broken promise: " << promise << std::endl;
        std::abort();
    }
}

}  // namespace horavex
