// The running program as other programs of the session meet it.

#include <gmock/gmock.h>

#include <regex>

#include "e2e/harness/athan_fixture.h"
#include "e2e/harness/status_notifier_host.h"
#include "e2e/harness/wait_until.h"
#include "support/build_folder.h"
#include "support/document_blocks.h"

namespace horavex {
namespace {

using testing::ContainsRegex;
using testing::HasSubstr;
using testing::SizeIs;
using testing::StartsWith;

struct BusProgramTest : AthanProgramTest {
    std::string Ctl(const std::vector<std::string>& arguments) const {
        std::vector<std::string> words = {BuildPath("bin/horavexctl")};
        words.insert(words.end(), arguments.begin(), arguments.end());
        return desktop.Use(words);
    }

    /// Waits until the state is told so.
    std::string Status(const std::string& part) const {
        return WaitUntil(part,
                         [&] {
                             const std::string told = Ctl({"status", "--json"});
                             return told.find(part) == told.npos ? std::nullopt
                                                                 : std::optional(told);
                         })
            .value();
    }
};

TEST_F(BusProgramTest, StateIsThatOfTheFace) {
    const ChildProcess program = Start();
    const std::string status = Status("\"prayer\":\"Asr\",\"local\":\"2026-11-21T15:1");
    EXPECT_THAT(status, HasSubstr("\"place\":\"Mecca"));
    EXPECT_THAT(status, HasSubstr("\"hijri\":\"1448-06-10\""));
    EXPECT_THAT(status, HasSubstr("\"athanPlaying\":false"));
}

TEST_F(BusProgramTest, FaceIsHiddenAndBroughtBack) {
    StatusNotifierHost host(desktop);
    const ChildProcess program = Start();
    host.AwaitIcon();
    Ctl({"hide"});
    EXPECT_TRUE(WaitUntil("no face", [&] { return desktop.WindowsOf(program).empty(); }));
    Ctl({"show"});
    EXPECT_TRUE(WaitUntil("the face", [&] { return !desktop.WindowsOf(program).empty(); }));
}

TEST_F(BusProgramTest, FaceThatFillsTheScreenIsHiddenWhole) {
    StatusNotifierHost host(desktop);
    StoreOptions({{"Face Full Screen", "1"}});
    const ChildProcess program = Start();
    host.AwaitIcon();
    EXPECT_TRUE(WaitUntil("both windows", [&] { return desktop.WindowsOf(program).size() == 2; }));
    Ctl({"hide"});
    EXPECT_TRUE(WaitUntil("no window", [&] { return desktop.WindowsOf(program).empty(); }));
    Ctl({"show"});
    EXPECT_TRUE(WaitUntil("the face", [&] { return desktop.WindowsOf(program).size() == 1; }));
}

TEST_F(BusProgramTest, ProgramRunsOnWhenTheBusEnds) {
    const ChildProcess program = Start();
    Status("\"next\":{\"prayer\":\"Zuhr\"");
    desktop.EndBus();
    ExpectTicks();
    EXPECT_TRUE(program.IsRunning());
}

TEST_F(BusProgramTest, SecondStartBringsTheHiddenFaceToTheFrontAndEndsWithoutABox) {
    StoreOptions({{"Show Running", "1"}});
    StatusNotifierHost host(desktop);
    const ChildProcess program = Start();
    host.AwaitIcon();
    Status("\"place\":\"Mecca");
    Ctl({"hide"});
    WaitUntil("no face", [&] { return desktop.WindowsOf(program).empty(); });
    ChildProcess second = desktop.Start("horavex");
    EXPECT_TRUE(WaitUntil("the face", [&] { return !desktop.WindowsOf(program).empty(); }));
    EXPECT_EQ(second.Wait(), 0);
    EXPECT_TRUE(program.IsRunning());
}

TEST_F(BusProgramTest, MinimisedFaceIsBroughtBackByASecondStart) {
    StoreOptions({{"Show Running", "1"}});
    const ChildProcess program = Start();
    Status("\"place\":\"Mecca");
    desktop.Use({"xdotool", "windowminimize", face});
    WaitUntil("no face", [&] { return !desktop.IsOnView(program, face); });
    ChildProcess second = desktop.Start("horavex");
    EXPECT_TRUE(WaitUntil("the face", [&] { return desktop.IsOnView(program, face); }));
    EXPECT_EQ(second.Wait(), 0);
}

TEST_F(BusProgramTest, AthanIsStartedAndStopped) {
    const ChildProcess program = Start();
    Ctl({"athan", "now"});
    WaitForAthan(program);
    Status("\"athanPlaying\":true");
    Ctl({"athan", "stop"});
    EXPECT_TRUE(WaitUntil("no athan", [&] { return !IsOnView(program); }));
    Status("\"athanPlaying\":false");
}

TEST_F(BusProgramTest, QuietIsChosenAndEnded) {
    const ChildProcess program = Start();
    Ctl({"quiet", "30"});
    EXPECT_THAT(Status("\"quietUntil\":\"2026"), ContainsRegex("2026-11-21T12:3[0-9]:"));
    Ctl({"quiet", "0"});
    Status("\"quietUntil\":null");
}

TEST_F(BusProgramTest, CommandsOfTheDocumentWork) {
    const ChildProcess program = Start();
    Status("\"next\":{\"prayer\":\"Zuhr\"");
    for (const char* tool : {"gdbus", "busctl"}) {
        const std::vector<std::string> commands = BlockOf("docs/bus.md", "sh", tool);
        ASSERT_THAT(commands, SizeIs(3)) << tool;
        EXPECT_THAT(desktop.Use({"sh", "-c", commands[0]}), HasSubstr("PrayerArrived"));
        EXPECT_THAT(desktop.Use({"sh", "-c", commands[1]}), ContainsRegex("Zuhr|Mecca"));
        desktop.Use({"sh", "-c", commands[2]});
    }
    Status("\"quietUntil\":null");  // the last one ends what the first has chosen
}

TEST_F(BusProgramTest, LinesOfTheStatusBarsAreFilled) {
    const ChildProcess program = Start();
    Status("\"next\":{\"prayer\":\"Zuhr\"");
    const std::string document = ContentOf(SourcePath("docs/status-bars.md"));
    const std::regex call("horavexctl status (?:--follow )?(--format ['\"][^'\"]*['\"])");
    int count = 0;
    for (std::sregex_iterator line(document.begin(), document.end(), call), end; line != end;
         ++line, ++count) {
        const std::string words = BuildPath("bin/horavexctl") + " status " + (*line)[1].str();
        EXPECT_THAT(desktop.Use({"sh", "-c", words}), StartsWith("Zuhr ")) << words;
    }
    EXPECT_EQ(count, 7);
}

TEST_F(BusProgramTest, ProgramWithoutABusRunsOn) {
    desktop.variables["DBUS_SESSION_BUS_ADDRESS"] = "unix:path=/nowhere";
    const ChildProcess program = Start();
    ExpectTicks();
    EXPECT_TRUE(program.IsRunning());
}

}  // namespace
}  // namespace horavex
