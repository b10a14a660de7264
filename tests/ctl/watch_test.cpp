#include <signal.h>

#include <filesystem>

#include "ctl/ctl_json.h"
#include "support/pseudo_terminal.h"

namespace horavex {
namespace {

constexpr const char* kSecondScreen = "\x1b[?1049h\x1b[?25l";  // and no cursor
constexpr const char* kFirstScreen = "\x1b[?25h\x1b[?1049l";
constexpr const char* kFrameEnd = "\x1b[J";

/// horavexctl today --watch over the settings of a fresh install, in Mecca.
struct CtlWatch : testing::Test {
    std::string Frame() { return terminal.ReadTo(kFrameEnd); }

    Ctl ctl;
    PseudoTerminal terminal{"horavexctl", {"today", "--watch"}, ctl.variables};
};

/// The value of the line that begins so.
std::string LineOf(const std::string& frame, const std::string& beginning) {
    const std::size_t at = frame.find(beginning);
    if (at == std::string::npos) {
        throw std::runtime_error("no line " + beginning + " in " + frame);
    }
    const std::size_t value = at + beginning.size();
    return frame.substr(value, frame.find('\x1b', value) - value);
}

TEST_F(CtlWatch, FirstFrameOpensTheSecondScreenAtItsTop) {
    EXPECT_THAT(Frame(), testing::StartsWith(std::string(kSecondScreen) + "\x1b[H"));
}

TEST_F(CtlWatch, FrameTellsTheDay) {
    const std::string frame = Frame();
    EXPECT_THAT(frame, testing::HasSubstr("Mecca, Mecca - Saudi Arabia\x1b[K"));
    for (const char* line : {"Fajr  ", "Shurooq  ", "Zuhr  ", "Asr  ", "Maghrib  ", "Isha  "}) {
        EXPECT_THAT(frame, testing::HasSubstr(line));
    }
    EXPECT_THAT(LineOf(frame, "Next: "), testing::HasSubstr(" at "));
    EXPECT_THAT(LineOf(frame, "Remaining: "), testing::MatchesRegex("[0-9]+:[0-9]+:[0-9]+"));
    EXPECT_THAT(LineOf(frame, "Qibla: "), testing::EndsWith(" of North"));
}

TEST_F(CtlWatch, NextPrayerStandsOutBold) {
    const std::string bold = LineOf(Frame(), "\x1b[1m  > ");
    EXPECT_THAT(bold, testing::MatchesRegex("(Fajr|Zuhr|Asr|Maghrib|Isha) +[0-9:]+ [AP]M"));
}

TEST_F(CtlWatch, RemainingTimeChangesFromFrameToFrame) {
    std::string former = LineOf(Frame(), "Remaining: ");
    for (int frame = 0; frame < 3; ++frame) {
        const std::string next = Frame();
        EXPECT_THAT(next, testing::StartsWith("\x1b[H")) << "drawn in place";
        const std::string remaining = LineOf(next, "Remaining: ");
        EXPECT_NE(remaining, former);
        former = remaining;
    }
}

TEST_F(CtlWatch, ControlCEndsItWithStatus0AndTheTerminalAsItWas) {
    Frame();
    terminal.Type("\x03");
    EXPECT_THAT(terminal.ReadToEnd(), testing::EndsWith(kFirstScreen));
    EXPECT_EQ(terminal.Wait(), 0);
}

TEST_F(CtlWatch, SignalsToEndLeaveTheTerminalAsItWas) {
    Frame();
    terminal.Signal(SIGTERM);
    EXPECT_THAT(terminal.ReadToEnd(), testing::EndsWith(kFirstScreen));
    EXPECT_EQ(terminal.Wait(), 0);
}

TEST(CtlWatchOf, PlaceThatCannotBeCalculatedNeverOpensTheSecondScreen) {
    const Ctl ctl;
    PseudoTerminal terminal("horavexctl",
                            {"today", "--watch", "--city", "Tromso", "--high-latitude", "none"},
                            ctl.variables);
    const std::string text = terminal.ReadToEnd();
    EXPECT_THAT(text, testing::HasSubstr("cannot be calculated with the present settings"));
    EXPECT_THAT(text, testing::Not(testing::HasSubstr("\x1b")));
    EXPECT_EQ(terminal.Wait(), 1);
}

}  // namespace
}  // namespace horavex
