#include "engine/accepted_year.h"

#include <optional>

#include "base/program_state.h"
#include "engine/current_year.h"
#include "engine/place.h"
#include "engine/ruled_year.h"
#include "engine/year_table.h"

namespace horavex {

namespace {

struct KeptYear {
    std::int16_t year;
    double latitudeRad;
    double longitudeWestRad;
    std::string cityText;
    YearTimes times;
    YearBasis basis;
};

std::optional<KeptYear> kept;

const ProgramStateReset reset([] { kept.reset(); });

}  // namespace

void KeepYear() {
    kept = {CurrentYear, LatitudeRad, LongitudeWestRad, YearCityText, Times, RuledYear};
}

bool BringYearBack() {
    if (!kept || kept->year != CurrentYear) {
        return false;
    }
    LatitudeRad = kept->latitudeRad;
    LongitudeWestRad = kept->longitudeWestRad;
    YearCityText = kept->cityText;
    Times = kept->times;
    RuledYear = kept->basis;
    return true;
}

}  // namespace horavex
