#include "geo/distance.h"

#include <map>
#include <memory>

#include "base/number_text.h"
#include "base/text.h"
#include "ctl/command.h"
#include "ctl/coordinate.h"

namespace horavex {

namespace {

const std::map<std::string, DistanceUnit> kUnits = {{"km", DistanceUnit::kKilometres},
                                                    {"mi", DistanceUnit::kMiles},
                                                    {"nmi", DistanceUnit::kNauticalMiles}};

struct DistanceOptions {
    std::string from;
    std::string to;
    std::string unit;
};

struct PointTexts {
    CoordinateTexts latitude;
    CoordinateTexts longitude;
};

/// "30:3:0N,31:15:0E".
PointTexts ParsePoint(const std::string& text) {
    const auto parts = Split(text, ',');
    if (parts.size() != 2) {
        RefuseUsage("\"" + text + "\" is no place such as 30:3:0N,31:15:0E");
    }
    return {TextsOf(ParseCommandCoordinate(parts[0], kLatitudeLetters, kLargestLatitude)),
            TextsOf(ParseCommandCoordinate(parts[1], kLongitudeLetters, kLargestLongitude))};
}

PointTexts ParseTarget(const std::string& text) {
    return text == "mecca" ? PointTexts{kMeccaLatitudeTexts, kMeccaLongitudeTexts}
                           : ParsePoint(text);
}

void PrintDistance(const Session& session, const DistanceOptions& options) {
    const PointTexts from = ParsePoint(options.from);
    const PointTexts to = ParseTarget(options.to);
    const DistancePoints points = {.DistanceLatA = ReadCoordinate(from.latitude),
                                   .DistanceLonA = ReadCoordinate(from.longitude),
                                   .DistanceLatB = ReadCoordinate(to.latitude),
                                   .DistanceLonB = ReadCoordinate(to.longitude)};
    const DistanceUnit unit = kUnits.at(options.unit);
    const double value = InUnit(DistanceKilometres(points), unit);
    session.Print({{"value", value}, {"unit", options.unit}},
                  NumberToText(value) + " " + UnitName(unit) + "\n");
}

}  // namespace

void AddDistanceCommand(CLI::App& app, Session& session) {
    auto* command = AddCommand(app, session, "distance", "The distance between two places");
    auto options = std::make_shared<DistanceOptions>();
    command->add_option("--from", options->from, "A place, such as 30:3:0N,31:15:0E")->required();
    command->add_option("--to", options->to, "Another place, or mecca")->required();
    command->add_option("--unit", options->unit, "km, mi or nmi")
        ->check(CLI::IsMember({"km", "mi", "nmi"}))
        ->required();
    command->callback([&session, options] { PrintDistance(session, *options); });
}

}  // namespace horavex
