#include "store/location_record.h"

#include "base/program_state.h"

namespace horavex {

LocationRecord Location;
std::string CityText;
LocationRecord ActiveLocation;
std::string ActiveCityText;

namespace {

const ProgramStateReset reset([] {
    Location = ActiveLocation = {};
    CityText.clear();
    ActiveCityText.clear();
});

}  // namespace

}  // namespace horavex
