#include "ctl/place_lines.h"

#include <CLI/CLI.hpp>

#include "base/fault.h"
#include "ctl/line_answer.h"
#include "ctl/line_calls.h"
#include "fuzz/input.h"
#include "fuzz/nameless_file.h"
#include "fuzz/target.h"
#include "fuzz/targets/targets.h"

namespace horavex {

namespace {

void RequireItsWayBack(const PlaceLine& line) {
    const LineRequest sent{std::to_string(line.number), false, line.text};
    const LineRequest taken = UnpackedRequest(PackedRequest(sent));
    Require(taken.number == sent.number && taken.isThere == sent.isThere && taken.text == sent.text,
            "a line comes as it was sent");
}

void ReadCall(LineCalls& calls, const PlaceLine& line) {
    try {
        calls.Read(line.text);
    } catch (const CLI::ParseError&) {
        // Refused.
    }
}

void ReadAll(const std::string& path) {
    try {
        PlaceLines lines(path);
        LineCalls calls(lines.Columns(), 2026);
        std::uint64_t last = 0;
        while (const auto line = lines.Next()) {
            Require(line->number > last, "numbers of lines rise");
            last = line->number;
            RequireItsWayBack(*line);
            ReadCall(calls, *line);
        }
    } catch (const CLI::ParseError&) {
        // The head is refused.
    }
}

}  // namespace

void FuzzPlaceLines(ByteView input) {
    const NamelessFile file(input);
    RunStep([&] { ReadAll(file.Path()); });
}

}  // namespace horavex
