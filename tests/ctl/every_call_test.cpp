// What holds for every call of horavexctl, whatever it tells.

#include <gmock/gmock.h>

#include <algorithm>

#include "base/text.h"
#include "ctl_json.h"
#include "support/build_folder.h"

namespace horavex {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;
using testing::UnorderedElementsAreArray;

/// A call that succeeds by itself; its first word is the subcommand. Files go into a new folder.
constexpr const char* kCalls[] = {
    "year --year 2026 --city Cairo",
    "years --from /dev/null --output years.jsonl",
    "today --city Cairo",
    "qibla --city Cairo",
    "dst --year 2026",
    "zones --longitude 30",
    "cities --limit 2",
    "lang --section msg --key 1",
    "text --entry 1 --language 1",
    "moon --year 2026 --zone 2",
    "eclipses --year 2026 --zone 2",
    "moonrise --date 2026-1-1 --city Cairo",
    "sky --city Cairo",
    "phases --year 2026",
    "crescent --month 9 --year 1448 --city Cairo",
    "hijri --date 2026-11-21",
    "gregorian --date 1448-6-10",
    "distance --from 30:3:0N,31:15:0E --to mecca --unit km",
    "export --year 2026 --format csv --output year.csv --city Cairo",
    "methods",
    "validate",
    "completion bash",
    "manual",
};

/// Those that want a running program.
constexpr const char* kRequests[] = {"status", "athan now", "show", "hide", "quiet 5"};

std::string NameOf(const std::string& call) {
    return call.substr(0, call.find(' '));
}

/// The subcommands that the help tells.
std::vector<std::string> Subcommands() {
    const std::string help = Ctl().Run("--help").out;
    const std::size_t list = help.find("Subcommands:\n");
    std::vector<std::string> names;
    for (const std::string& line : Split(help.substr(list + 13), '\n')) {
        if (!Trim(line).empty()) {
            names.push_back(NameOf(std::string(Trim(line))));
        }
    }
    return names;
}

ProgramRun RunIn(const Ctl& ctl, const std::string& line) {
    return RunCommand(
        {"/bin/sh", "-c", "cd \"$HOME\" && exec " + BuildPath("bin/horavexctl") + " " + line},
        ctl.variables);
}

void ExpectOneLine(const ProgramRun& run, int status, const std::string& line) {
    EXPECT_EQ(run.status, status) << line;
    EXPECT_EQ(run.out, "") << line;
    EXPECT_THAT(run.err, AllOf(StartsWith("horavexctl: "), EndsWith("\n"))) << line;
    EXPECT_EQ(std::ranges::count(run.err, '\n'), 1) << line << run.err;
}

TEST(EveryCall, StandsInTheseTests) {
    std::vector<std::string> tested;
    std::ranges::transform(kCalls, std::back_inserter(tested), NameOf);
    std::ranges::transform(kRequests, std::back_inserter(tested), NameOf);
    EXPECT_THAT(Subcommands(), UnorderedElementsAreArray(tested));
}

TEST(EveryCall, PrintsOneTextAsJson) {
    for (const std::string call : kCalls) {
        const ProgramRun run = RunIn(Ctl(), call + " --json");
        EXPECT_EQ(run.status, 0) << call << run.err;
        EXPECT_EQ(run.err, "") << call;
        EXPECT_TRUE(Json::parse(run.out).is_structured()) << call;
        EXPECT_EQ(std::ranges::count(run.out, '\n'), 1) << call;
    }
}

TEST(EveryCall, FailsWhereItsOutputCannotBeWritten) {
    for (const std::string call : kCalls) {
        for (const char* json : {"", " --json"}) {
            const ProgramRun run = RunIn(Ctl(), call + json + " > /dev/full");
            EXPECT_EQ(run.status, 1) << call << json;
            EXPECT_EQ(run.err, "horavexctl: the standard output cannot be written\n") << call;
        }
    }
}

TEST(EveryCall, RefusesAnOptionAndAWordThatItDoesNotHave) {
    const Ctl ctl;
    for (const std::string call : kCalls) {
        ExpectOneLine(ctl.Run(call + " --nonsense"), 2, call);
        ExpectOneLine(ctl.Run(call + " nonsense"), 2, call);
    }
    for (const std::string call : kRequests) {
        ExpectOneLine(ctl.Run(call + " --nonsense"), 2, call);
        ExpectOneLine(ctl.Run(call + " nonsense"), 2, call);
    }
}

/// The calls that take a city, without theirs.
std::vector<std::string> CallsForACity() {
    std::vector<std::string> calls;
    for (const std::string call : kCalls) {
        if (const std::size_t at = call.find(" --city Cairo"); at != std::string::npos) {
            calls.push_back(call.substr(0, at) + call.substr(at + 13));
        }
    }
    return calls;
}

TEST(EveryCallForACity, SaysThatThereIsNone) {
    const Ctl ctl;
    for (const std::string& call : CallsForACity()) {
        const ProgramRun run = ctl.Run(call + " --city Xyzzyx");
        ExpectOneLine(run, 2, call);
        EXPECT_THAT(run.err, HasSubstr("no city matches \"Xyzzyx\"")) << call;
    }
}

TEST(EveryCallForACity, NamesThoseThatShareAName) {
    const Ctl ctl;
    for (const std::string& call : CallsForACity()) {
        const ProgramRun run = ctl.Run(call + " --city Springfield --json");
        EXPECT_EQ(run.status, 2) << call;
        EXPECT_EQ(run.out, "") << call;
        EXPECT_THAT(run.err, StartsWith("  --city \"Springfield, ")) << call;
        EXPECT_THAT(run.err, HasSubstr("\nhoravexctl: \"Springfield\" may be ")) << call;
    }
}

TEST(EveryCallForACity, RefusesAnIndexThatNoneHas) {
    const Ctl ctl;
    for (const std::string& call : CallsForACity()) {
        ExpectOneLine(ctl.Run(call + " --city-index 32767"), 2, call);
        ExpectOneLine(ctl.Run(call + " --near 0,181"), 2, call);
    }
}

TEST(Export, FileThatCannotBeWrittenIsOneLineThatNamesIt) {
    const Ctl ctl;
    for (const std::string format : {"csv", "json", "ics", "html", "text"}) {
        const std::string path = ctl / "nowhere/year." + format;
        const ProgramRun run =
            ctl.Run("export --city Cairo --year 2026 --format " + format, {"--output", path});
        ExpectOneLine(run, 1, format);
        EXPECT_THAT(run.err, HasSubstr(path));
    }
}

}  // namespace
}  // namespace horavex
