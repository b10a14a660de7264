#include <memory>

#include "base/date.h"
#include "ctl/number_range.h"
#include "ctl/place_options.h"
#include "engine/angle.h"
#include "store/location_text.h"
#include "store/settings_defaults.h"
#include "store/settings_record.h"

namespace horavex {

namespace {

struct DstOptions {
    int year = 0;
    bool south = false;
};

void PrintDst(const Session& session, const DstOptions& options) {
    constexpr std::int16_t kSomewhereSouth = -1;
    SetDefaultDstDays(DateSerial(options.year, 1, 1), options.south ? kSomewhereSouth : 0);
    session.Print(
        {{"start", Settings.DstStart}, {"end", Settings.DstEnd}},
        std::to_string(Settings.DstStart) + " to " + std::to_string(Settings.DstEnd) + "\n");
}

void PrintZones(const Session& session, double longitude) {
    ZoneFromLongitude(StoredCoord(StoredFromDegrees(longitude)));
    session.Print({{"west", ZoneWest}, {"nearest", ZoneNearest}, {"east", ZoneEast}},
                  "west " + std::to_string(ZoneWest) + ", nearest " + std::to_string(ZoneNearest) +
                      ", east " + std::to_string(ZoneEast) + "\n");
}

void AddDstCommand(CLI::App& app, Session& session) {
    auto* command =
        AddCommand(app, session, "dst", "The daylight saving days that the settings propose");
    auto options = std::make_shared<DstOptions>();
    command->add_option("--year", options->year, "Gregorian year")
        ->check(CLI::Range(1, 9999))
        ->required();
    command->add_flag("--south", options->south, "For a place south of the equator");
    command->callback([&session, options] { PrintDst(session, *options); });
}

}  // namespace

void AddZoneCommands(CLI::App& app, Session& session) {
    AddDstCommand(app, session);
    auto* command = AddCommand(app, session, "zones", "The time zones that a longitude suggests");
    auto longitude = std::make_shared<double>(0.0);
    command->add_option("--longitude", *longitude, "Degrees, east positive")
        ->check(NumberFrom(-180.0, 180.0))
        ->required();
    command->callback([&session, longitude] { PrintZones(session, *longitude); });
}

}  // namespace horavex
