#include "geo/qibla.h"

#include <memory>

#include "ctl/place_options.h"
#include "engine/angle.h"
#include "engine/place.h"
#include "store/location_record.h"
#include "store/settings_record.h"

namespace horavex {

namespace {

void PrintQibla(const Session& session, const PlaceOptions& place) {
    TakeNamedPlace(place);
    LatitudeRad = DegToRad(StoredCoord(Location.City.Latitude));
    LongitudeWestRad = -1.0 * DegToRad(StoredCoord(Location.City.Longitude));
    Settings.QiblaMethod = 1;
    ComputeQibla();
    const DegreesMinutes split = SplitDegrees(QiblaDegrees);
    session.Print({{"radians", QiblaRad},
                   {"degrees", QiblaDegrees},
                   {"whole", split.whole},
                   {"minutes", split.minutes},
                   {"text", QiblaText}},
                  QiblaText + "\n");
}

}  // namespace

void AddQiblaCommand(CLI::App& app, Session& session) {
    auto* command = AddCommand(app, session, "qibla", "The direction of Mecca from a place");
    auto place = std::make_shared<PlaceOptions>();
    AddWhereOptions(*command, *place);
    command->callback([&session, place] { PrintQibla(session, *place); });
}

}  // namespace horavex
