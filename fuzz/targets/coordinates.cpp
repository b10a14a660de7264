#include <CLI/CLI.hpp>
#include <cmath>

#include "base/fault.h"
#include "ctl/coordinate.h"
#include "fuzz/input.h"
#include "fuzz/target.h"
#include "fuzz/targets/targets.h"
#include "geo/distance.h"
#include "store/location_text.h"
#include "support/data_folder.h"
#include "support/test_platform.h"

namespace horavex {

namespace {

void ReadOption(const std::string& text) {
    try {
        const CommandCoordinate read =
            ParseCommandCoordinate(text, kLatitudeLetters, kLargestLatitude);
        Require(read.degrees >= 0 && read.degrees <= kLargestLatitude,
                "degrees within their range");
        Require(read.minutes >= 0 && read.minutes < 60, "minutes within their range");
        Require(read.seconds >= 0 && read.seconds < 60, "seconds within their range");
        Require(std::isfinite(ReadCoordinate(TextsOf(read))), "a coordinate is a number");
    } catch (const CLI::ParseError&) {
        // Refused.
    }
}

void ReadBoxes(FuzzInput& input) {
    const CoordinateTexts texts{input.TakeText(), input.TakeText(), input.TakeText()};
    RunStep([&] { ReadCoordinate(texts); });
}

}  // namespace

void FuzzCoordinates(ByteView bytes) {
    FuzzInput input(bytes);
    ReadBoxes(input);
    DistancePoints points{};
    for (double* value :
         {&points.DistanceLatA, &points.DistanceLonA, &points.DistanceLatB, &points.DistanceLonB}) {
        *value = input.TakeInt16() / 100.0;
    }
    RunStep([&] { DistanceKilometres(points); });
    BearingDegrees(points);
    const std::string text = input.TakeRest();
    RunStep([&] { ParseCoordinates(text); });
    ReadOption(text);
}

}  // namespace horavex
