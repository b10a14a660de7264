#include <fcntl.h>
#include <gmock/gmock.h>
#include <poll.h>
#include <sys/stat.h>
#include <sys/timerfd.h>
#include <unistd.h>

#include <csignal>
#include <ctime>
#include <filesystem>
#include <optional>
#include <utility>

#include "ctl_json.h"
#include "linux/bus/session_broadcast.h"
#include "session_bus.h"
#include "support/build_folder.h"
#include "support/scoped_variable.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::MatchesRegex;
using testing::StartsWith;

/// The same with a running program, as far as others can see it.
struct RunningTest : SessionBus {
    RunningTest() {
        broadcast->onShow = [this] { asked.push_back("Show"); };
        broadcast->onHide = [this] { asked.push_back("Hide"); };
        broadcast->onAthanNow = [this] { asked.push_back("AthanNow"); };
        broadcast->onStopAthan = [this] { asked.push_back("StopAthan"); };
        broadcast->onQuiet = [this](int minutes) {
            asked.push_back("Quiet " + std::to_string(minutes));
        };
        broadcast->Publish(DayInCairo());
    }

    ChildProcess Start(std::vector<std::string> words) {
        words.insert(words.begin(), BuildPath("bin/horavexctl"));
        return {words, ctl.variables, folder / "told", folder / "complaint"};
    }

    /// Answers it as long as it runs.
    ProgramRun Run(const std::vector<std::string>& words) {
        ChildProcess child = Start(words);
        WaitUntil("horavexctl", [&] {
            Serve();
            return !child.IsRunning();
        });
        return {child.Wait(), ContentOf(folder / "told"), ContentOf(folder / "complaint")};
    }

    /// Answers a command that follows until it has printed so much.
    std::string Follow(const std::string& end) {
        return WaitUntil(end,
                         [&] {
                             Serve();
                             const std::string told = ContentOf(folder / "told");
                             return told.ends_with(end) ? std::optional(told) : std::nullopt;
                         })
            .value();
    }

    void Serve() {
        if (broadcast) {
            broadcast->Serve();
        }
    }

    ScopedVariable address{"DBUS_SESSION_BUS_ADDRESS", Address().c_str()};
    std::optional<SessionBroadcast> broadcast{
        std::in_place, [](const std::function<void()>& request) { request(); }};
    std::vector<std::string> asked;
};

TEST_F(RunningTest, StatusTellsTheDayAndMarksTheNextPrayer) {
    const ProgramRun run = Run({"status"});
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(run.out, HasSubstr("Cairo, Egypt\nAfrica/Cairo   1448-06-11\n"));
    EXPECT_THAT(run.out, HasSubstr("    Fajr      04:56\n"));
    EXPECT_THAT(run.out, HasSubstr("  > Asr       14:38\n"));
    EXPECT_THAT(run.out, HasSubstr("    Isha      \n"));
    EXPECT_THAT(run.out, HasSubstr("Next: Asr at 14:38, in "));
}

TEST_F(RunningTest, StatusTellsAnAthanThatIsUpAndAQuietTime) {
    ToldState state = DayInCairo();
    state.athanPlaying = true;
    state.quietUntil = "2026-11-21T20:00:00+02:00";
    broadcast->Publish(state);
    EXPECT_THAT(Run({"status"}).out, EndsWith("An athan is up\nQuiet until 20:00\n"));
}

TEST_F(RunningTest, JsonOfTheStatusHasAllThatIsTold) {
    const Json json = Json::parse(Run({"status", "--json"}).out);
    EXPECT_THAT(KeysOf(json), ElementsAre("running", "place", "zone", "moments", "next", "hijri",
                                          "athanPlaying", "quietUntil"));
    EXPECT_EQ(json["moments"][0]["local"], "2026-11-21T04:56:00+02:00");
    EXPECT_TRUE(json["moments"][5]["local"].is_null());
    EXPECT_EQ(json["moments"][5]["by"], "rule");
    EXPECT_EQ(json["next"]["prayer"], "Asr");
    EXPECT_EQ(json["athanPlaying"], false);
    EXPECT_TRUE(json["quietUntil"].is_null());
}

TEST_F(RunningTest, TextsOfTheProgramSteerNoTerminal) {
    ToldState state = DayInCairo();
    state.place = "a\x1b[2Jb\x07";
    state.zone =
        "\xC2\x9B"
        "1m";
    broadcast->Publish(state);
    EXPECT_THAT(Run({"status"}).out, StartsWith("a[2Jb\n1m "));
    EXPECT_THAT(Run({"status", "--format", "{place}"}).out, StartsWith("a[2Jb\n"));
    const ChildProcess child = Start({"status", "--follow", "--format", "{place}"});
    EXPECT_EQ(Follow("\n"), "a[2Jb\n");
}

TEST_F(RunningTest, LineForAStatusBarIsFilled) {
    EXPECT_EQ(Run({"status", "--format", "{next} {time} | {Fajr} {Isha}| {\"a\": {place}}"}).out,
              "Asr 14:38 | 04:56 | {\"a\": Cairo, Egypt}\n");
}

TEST_F(RunningTest, FollowedItPrintsALineAtEachChangeAlone) {
    const ChildProcess child = Start({"status", "--follow", "--format", "{next} {time} {athan}"});
    EXPECT_EQ(Follow("\n"), "Asr 14:38 \n");
    ToldState state = DayInCairo();
    state.place = "Giza, Egypt";  // which the line does not tell
    broadcast->Publish(state);
    state.athanPlaying = true;
    broadcast->Publish(state);
    EXPECT_EQ(Follow("athan\n"), "Asr 14:38 \nAsr 14:38 athan\n");
    EXPECT_TRUE(child.IsRunning());
}

TEST_F(RunningTest, FollowedItTellsThatTheProgramHasGone) {
    const ChildProcess child = Start({"status", "--follow", "--json"});
    Follow("}\n");
    broadcast.reset();
    EXPECT_THAT(Follow("{\"running\":false}\n"), HasSubstr("\"running\":true"));
}

TEST_F(RunningTest, FollowedItWaitsForTheProgramToComeAgain) {
    const ChildProcess child = Start({"status", "--follow"});
    EXPECT_EQ(Follow("\n"), "Asr 14:38\n");
    broadcast.reset();
    EXPECT_EQ(Follow("\n\n"), "Asr 14:38\n\n");
    broadcast.emplace([](const std::function<void()>& request) { request(); });
    broadcast->Publish(DayInCairo());
    EXPECT_EQ(Follow("38\n"), "Asr 14:38\n\nAsr 14:38\n");
}

TEST_F(RunningTest, FollowedItEndsInPeaceByASignal) {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        ChildProcess child = Start({"status", "--follow"});
        Follow("\n");
        child.Signal(signal);
        EXPECT_EQ(child.Wait(), 0) << signal;
        EXPECT_EQ(ContentOf(folder / "complaint"), "");
    }
}

TEST_F(RunningTest, FollowedItEndsInPeaceWhenItsReaderGoes) {
    const std::string pipe = folder / "told";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    const int reader = open(pipe.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    ChildProcess child = Start({"status", "--follow"});
    char told[32];
    EXPECT_TRUE(WaitUntil("a line", [&] {
        Serve();
        return read(reader, told, sizeof told) > 0;
    }));
    close(reader);
    EXPECT_EQ(child.Wait(), 0);
    EXPECT_EQ(ContentOf(folder / "complaint"), "");
}

TEST_F(RunningTest, LineForAReaderThatHasGoneIsNoFailure) {
    std::vector<std::string> words = {"sh", "-c",
                                      BuildPath("bin/horavexctl") + " status --follow 2>" +
                                          folder / "complaint" + " | true; echo ended"};
    ChildProcess shell(words, ctl.variables, folder / "told", folder / "err");
    Follow("ended\n");
    EXPECT_EQ(shell.Wait(), 0);
    EXPECT_EQ(ContentOf(folder / "complaint"), "");
}

TEST_F(RunningTest, OutputThatCannotBeWrittenEndsItWithAFailure) {
    std::filesystem::create_symlink("/dev/full", folder / "told");
    ChildProcess child = Start({"status", "--follow"});
    WaitUntil("its end", [&] {
        Serve();
        return !child.IsRunning();
    });
    EXPECT_EQ(child.Wait(), 1);
    EXPECT_EQ(ContentOf(folder / "complaint"),
              "horavexctl: the standard output cannot be written\n");
}

/// What the system tells of the timer of a process behind a word, to a sign.
std::string OfTimer(const ChildProcess& child, const std::string& word, char sign) {
    for (const auto& entry :
         std::filesystem::directory_iterator("/proc/" + std::to_string(child.Id()) + "/fdinfo")) {
        const std::string text = ContentOf(entry.path());
        const std::size_t at = text.find(word);
        if (at != std::string::npos) {
            const std::size_t begin = at + word.size();
            return text.substr(begin, text.find(sign, begin) - begin);
        }
    }
    return "no timer";
}

/// Seconds for which it is set; 0 where it is not.
std::string TimerOf(const ChildProcess& child) {
    return OfTimer(child, "it_value: (", ',');
}

/// Whether a clock that is set anew wakes it.
bool MindsTheClock(const ChildProcess& child) {
    return (std::stoi(OfTimer(child, "settime flags: ", '\n'), nullptr, 8) &
            TFD_TIMER_CANCEL_ON_SET) != 0;
}

/// "2026-11-21T14:38:00+00:00", so many seconds from now.
std::string InSeconds(int seconds) {
    const std::time_t then = std::time(nullptr) + seconds;
    std::tm parts{};
    gmtime_r(&then, &parts);
    char text[32];
    std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%S+00:00", &parts);
    return text;
}

TEST_F(RunningTest, FollowedItIsWokenByTheClockOnlyWhereTheLineTellsTheTimeLeft) {
    ToldState state = DayInCairo();
    state.nextTime = InSeconds(3600);
    broadcast->Publish(state);
    {
        const ChildProcess child = Start({"status", "--follow", "--format", "{next} {time}"});
        Follow("\n");
        EXPECT_TRUE(WaitUntil("its sleep", [&] { return TimerOf(child) == "0"; }));
        EXPECT_FALSE(MindsTheClock(child));
    }
    const ChildProcess child = Start({"status", "--follow", "--format", "{remaining}"});
    Follow("\n");
    EXPECT_TRUE(WaitUntil("its sleep", [&] { return std::atoi(TimerOf(child).c_str()) > 0; }));
    EXPECT_LE(std::stoi(TimerOf(child)), 60);
    EXPECT_TRUE(MindsTheClock(child));
}

TEST_F(RunningTest, FollowedItSleepsWhenTheTimeHasComeUntilTheProgramTellsOfIt) {
    ToldState state = DayInCairo();
    state.nextTime = InSeconds(-5);
    broadcast->Publish(state);
    const ChildProcess child = Start({"status", "--follow", "--format", "{remaining}"});
    EXPECT_EQ(Follow("\n"), "0:00\n");
    EXPECT_TRUE(WaitUntil("its sleep", [&] { return TimerOf(child) == "0"; }));
}

TEST_F(RunningTest, FollowedItTellsTheNextMinuteWhenItBegins) {
    ToldState state = DayInCairo();
    state.nextTime = InSeconds(3600);
    broadcast->Publish(state);
    const ChildProcess child = Start({"status", "--follow", "--format", "{remaining}"});
    Follow("1:00\n");  // it runs: what follows is told before the minute goes
    state.nextTime = InSeconds(64);
    broadcast->Publish(state);
    EXPECT_EQ(Follow("0:01\n"), "1:00\n0:02\n0:01\n");
}

TEST_F(RunningTest, FollowedItAsksAProgramAgainThatDoesNotAnswer) {
    const ChildProcess child = Start({"status", "--follow"});
    EXPECT_TRUE(WaitUntil("its patience's end", [&] {
        return std::atoi(TimerOf(child).c_str()) > 0;
    })) << ContentOf(folder / "complaint");
    EXPECT_EQ(ContentOf(folder / "told"), "");
    ToldState state = DayInCairo();
    state.athanPlaying = true;
    broadcast->Publish(state);
    EXPECT_EQ(Follow("\n"), "Asr 14:38\n");
}

TEST_F(RunningTest, FollowedItFailsWithOneLineWhenTheBusEnds) {
    ChildProcess child = Start({"status", "--follow"});
    Follow("\n");
    daemon.Signal(SIGKILL);
    EXPECT_EQ(child.Wait(), 1);
    EXPECT_THAT(ContentOf(folder / "complaint"),
                MatchesRegex("horavexctl: the session bus: [^\n]+\n"));
}

TEST_F(RunningTest, ProgramThatEndsBeforeItAnswersDoesNotRun) {
    Serve();
    ChildProcess child = Start({"status"});
    pollfd question{broadcast->Descriptor(), POLLIN, 0};
    ASSERT_EQ(poll(&question, 1, 20000), 1);
    broadcast.reset();
    EXPECT_EQ(child.Wait(), 1);
    EXPECT_EQ(ContentOf(folder / "complaint"),
              "horavexctl: Horavex does not run in this session\n");
}

TEST_F(RunningTest, RequestsReachTheProgram) {
    for (const std::vector<std::string>& words : std::vector<std::vector<std::string>>{
             {"show"}, {"hide"}, {"athan", "now"}, {"athan", "stop"}, {"quiet", "30"}}) {
        const ProgramRun run = Run(words);
        EXPECT_EQ(run.status, 0) << run.err;
        EXPECT_EQ(run.out, "");
    }
    EXPECT_THAT(asked, ElementsAre("Show", "Hide", "AthanNow", "StopAthan", "Quiet 30"));
    EXPECT_EQ(Run({"quiet", "0", "--json"}).out, "{\"asked\":\"Quiet\",\"minutes\":0}\n");
    EXPECT_EQ(Run({"show", "--json"}).out, "{\"asked\":\"Show\"}\n");
    EXPECT_EQ(Run({"hide", "--json"}).out, "{\"asked\":\"Hide\"}\n");
    EXPECT_EQ(Run({"athan", "now", "--json"}).out, "{\"asked\":\"AthanNow\"}\n");
    EXPECT_EQ(Run({"athan", "stop", "--json"}).out, "{\"asked\":\"StopAthan\"}\n");
}

TEST_F(SessionBus, ProgramThatDoesNotRunIsAFailureWithOneLine) {
    for (const char* line : {"status", "show", "hide", "athan now", "athan stop", "quiet 30",
                             "status --json", "show --json"}) {
        const ProgramRun run = ctl.Run(line);
        EXPECT_EQ(run.status, 1) << line;
        EXPECT_EQ(run.out, "") << line;
        EXPECT_EQ(run.err, "horavexctl: Horavex does not run in this session\n") << line;
    }
}

TEST(RunningWithoutABus, IsAFailureWithOneLine) {
    Ctl ctl;
    for (const char* line : {"status", "status --follow", "show", "athan stop", "quiet 5"}) {
        const ProgramRun run = ctl.Run(line);
        EXPECT_EQ(run.status, 1) << line;
        EXPECT_THAT(run.err, MatchesRegex("horavexctl: the session bus: [^\n]+\n")) << line;
    }
}

TEST(RunningUsage, WrongWordsAreRefused) {
    const Ctl ctl;
    for (const char* line : {"athan", "athan later", "quiet", "quiet 1441", "quiet -1",
                             "quiet soon", "status --format {nxt}", "show now"}) {
        const ProgramRun run = ctl.Run(line);
        EXPECT_EQ(run.status, 2) << line;
        EXPECT_THAT(run.out, IsEmpty()) << line;
    }
}

TEST(TodayLine, IsFilledWithoutARunningProgram) {
    const Ctl ctl;
    const std::string today = "today --city Cairo,Egypt --at 2026-11-21T12:00:00 --format";
    EXPECT_EQ(ctl.Run(today, {"{next} {time} in {remaining}, {hijri}, {zone}"}).out,
              "Asr 14:36 in 2:37, 1448-06-10, Africa/Cairo\n");
    EXPECT_EQ(ctl.Run(today, {"{seconds}"}).out.size(), 5U);
    EXPECT_EQ(ctl.Run(today, {"{nobody}"}).status, 2);
}

TEST(TodayLine, GoesOverToTomorrow) {
    const Ctl ctl;
    const Json day = JsonOf(ctl, "today --city Cairo,Egypt --at 2026-11-22T01:00:00");
    EXPECT_EQ(
        ctl.Run("today --city Cairo,Egypt --at 2026-11-21T23:00:00 --format", {"{next} {time}"})
            .out,
        "Fajr " + day["moments"][0]["local"].get<std::string>().substr(11, 5) + "\n");
}

}  // namespace
}  // namespace horavex
