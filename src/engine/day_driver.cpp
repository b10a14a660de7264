#include "engine/day_driver.h"

#include "base/int16.h"
#include "base/program_state.h"
#include "engine/angle.h"
#include "engine/current_year.h"
#include "engine/solar_event.h"
#include "engine/sun.h"
#include "engine/year_table.h"
#include "store/location_record.h"

namespace horavex {

namespace {

DayHost* host = nullptr;

const ProgramStateReset reset([] { host = nullptr; });

}  // namespace

void InstallDayHost(DayHost* newHost) {
    host = newHost;
}

void RecalculateYear() {
    LatitudeRad = DegToRad(StoredCoord(Location.City.Latitude));
    LongitudeWestRad = -1.0 * DegToRad(StoredCoord(Location.City.Longitude));
    LeapYearFlag();
    ComputeYearConstants(CurrentYear);
    ComputeYearTimes(0, AddInt16(365, LeapFlag),
                     [](double percent) { host->ReportProgress(percent); });
    if (CalcFailed == 0) {
        host->ComputeQibla();
    }
}

}  // namespace horavex
