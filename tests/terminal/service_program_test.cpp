// The built program without a face, as a machine runs it that nobody looks at: its log, the bus,
// and what the sound device plays.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>
#include <set>
#include <thread>

#include "base/program_version.h"
#include "e2e/harness/faked_clock.h"
#include "e2e/harness/sink_recording.h"
#include "e2e/harness/sound_server.h"
#include "e2e/harness/wait_until.h"
#include "linux/replace_file.h"
#include "store/settings_record.h"
#include "support/build_folder.h"
#include "support/bus_configuration.h"
#include "support/child_process.h"
#include "support/registry_values.h"

namespace horavex {
namespace {

namespace fs = std::filesystem;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

constexpr const char* kBeforeAsr = "2026-11-21 12:10:00";  // in Mecca 15:10

/// A machine without a display, whose clock the test sets.
class ServiceProgramTest : public testing::Test {
protected:
    ServiceProgramTest() {
        for (const char* folder : {"config", "data/horavex/Athan", "run"}) {
            fs::create_directories(home / folder);
        }
        StoreUsersRegistryValue(home / "config", "Isha Dep Angle", "18");
        WriteWav(home / "data/horavex/Athan/athan.mp3", sound);
        bus.emplace(
            std::vector<std::string>{"dbus-daemon", "--nofork", "--print-address=1",
                                     "--config-file=" + WriteBusConfiguration(home / "run")},
            variables);
        variables["DBUS_SESSION_BUS_ADDRESS"] = bus->FirstLine();
    }

    /// Stores the settings that are installed, with a change.
    void StoreSettings(const std::function<void(SettingsRecord&)>& change) const {
        const Bytes installed = BytesOf(ContentOf(BuiltProgramFolder() + "/Dat/AI.DAT"));
        SettingsBytes bytes{};
        std::copy_n(installed.begin(), bytes.size(), bytes.begin());
        SettingsRecord record = DecodeSettings(bytes);
        change(record);
        bytes = EncodeSettings(record);
        fs::create_directories(home / "data/horavex/Dat");
        for (const std::string name : {"AI.DAT", "Settings.DAT"}) {
            ReplaceFile(home / ("data/horavex/Dat/" + name), Bytes(bytes.begin(), bytes.end()));
        }
    }

    /// Starts it and waits until it answers on the bus.
    ChildProcess Start() {
        ChildProcess program = Launch("service");
        WaitUntil("a state", [this] { return Ctl({"status"}).status == 0; });
        return program;
    }

    /// Starts it, with its lines in a file of that name.
    ChildProcess Run(const std::string& name) {
        Environment all = variables;
        clock.InstallIn(all);
        return ChildProcess({BuildPath("bin/horavex-terminal"), "--no-face"}, all,
                            home / (name + ".out"), home / (name + ".err"));
    }

    /// Starts it and waits for its first line.
    ChildProcess Launch(const std::string& name) {
        ChildProcess program = Run(name);
        WaitUntil("the start", [&] { return !Log(name).empty(); });
        return program;
    }

    std::string Log(const std::string& name = "service") const {
        return ContentOf(home / (name + ".err"));
    }

    void WaitForLog(const std::string& part) const {
        WaitUntil(part, [&] { return Log().find(part) != std::string::npos; });
    }

    void WaitForStatus(const std::string& part) const {
        WaitUntil(part, [&] {
            return Ctl({"status", "--json"}).out.find(part) != std::string::npos;
        });
    }

    ProgramRun Ctl(const std::vector<std::string>& arguments) const {
        return RunProgram("horavexctl", arguments, variables);
    }

    TemporaryFolder home;
    const Samples sound = Glide(20.0, 300.0, 900.0);
    FakedClock clock{kBeforeAsr};
    Environment variables = {{"HOME", home.Path()},
                             {"PATH", std::getenv("PATH")},
                             {"XDG_CONFIG_HOME", home / "config"},
                             {"XDG_DATA_HOME", home / "data"},
                             {"XDG_CONFIG_DIRS", home / "machine"},
                             {"XDG_RUNTIME_DIR", home / "run"},
                             {"LC_ALL", "C.UTF-8"},
                             {"TZ", "Asia/Riyadh"}};
    std::optional<Service> bus;
};

TEST_F(ServiceProgramTest, StartTellsPlaceZoneAndNextPrayer) {
    const ChildProcess program = Start();
    EXPECT_THAT(Log(), HasSubstr(" Horavex " + FullVersionText() +
                                 " without a face: Mecca, Mecca - Saudi Arabia, UTC+03:00; "
                                 "next Asr at 2026-11-21T15:"));
}

TEST_F(ServiceProgramTest, AthanSoundsIsToldAndStoppedOverTheBus) {
    const SoundServer server;
    server.InstallIn(variables);
    const SinkRecording recording(server);
    ChildProcess program = Start();
    clock.Set("2026-11-21 12:15:19");
    WaitForLog("Asr has come, at 2026-11-21T15:");
    WaitForLog("the athan begins");
    const std::size_t start = recording.WaitForSound();
    recording.Continue(1.0);
    // A busy machine leaves gaps in what is longer.
    EXPECT_GT(Likeness(recording.Taken(), start, sound, 0, kWavRate / 10), 0.95);
    clock.Set("2026-11-21 12:25:00");
    EXPECT_EQ(Ctl({"athan", "stop"}).status, 0);
    WaitForLog("the athan is over");
    recording.WaitForSilence(recording.Taken().size());
    program.Signal(SIGTERM);
    EXPECT_EQ(program.Wait(), 0);
    EXPECT_THAT(Log(), EndsWith("ends: SIGTERM\n"));
    EXPECT_THAT(Log(), Not(HasSubstr("not heard")));
}

TEST_F(ServiceProgramTest, SilenceIsExplained) {
    variables["PULSE_SERVER"] = "unix:" + (home / "nowhere");
    const ChildProcess program = Start();
    EXPECT_EQ(Ctl({"athan", "now"}).status, 0);
    WaitForLog("the athan is not heard: no sound server can be reached");
    EXPECT_TRUE(program.IsRunning());
}

class ServiceSignalTest : public ServiceProgramTest, public testing::WithParamInterface<int> {};

TEST_P(ServiceSignalTest, EndsInTheMiddleOfAnAthanAndLeavesTheBus) {
    const SoundServer server;
    server.InstallIn(variables);
    const SinkRecording recording(server);
    ChildProcess program = Start();
    EXPECT_EQ(Ctl({"athan", "now"}).status, 0);
    recording.WaitForSound();
    program.Signal(GetParam());
    EXPECT_EQ(program.Wait(), 0);
    recording.WaitForSilence(recording.Taken().size());
    EXPECT_THAT(Log(), HasSubstr("ends: SIG"));
    EXPECT_NE(Ctl({"status"}).status, 0) << "nobody has the name";
}

INSTANTIATE_TEST_SUITE_P(Each, ServiceSignalTest, testing::Values(SIGTERM, SIGINT, SIGHUP));

TEST_F(ServiceProgramTest, WithoutAPlaceItSaysHowToChooseOneAndStoresNothing) {
    fs::remove_all(home / "config");
    ChildProcess program = Launch("service");
    EXPECT_EQ(program.Wait(), 2);
    EXPECT_THAT(
        Log(),
        EndsWith("no place has been chosen: choose one with horavex-terminal or with horavex\n"));
    EXPECT_FALSE(fs::exists(home / "config"));
}

TEST_F(ServiceProgramTest, DamagedSettingsAreToldAndSoundForNoOtherPlace) {
    StoreSettings([](SettingsRecord& record) { record.CityIndex = 30000; });
    ChildProcess program = Launch("service");
    EXPECT_EQ(program.Wait(), 2);
    EXPECT_THAT(Log(), HasSubstr("settings"));
    EXPECT_THAT(Log(), HasSubstr("no place has been chosen"));
}

TEST_F(ServiceProgramTest, AlarmIsALineAndIsStoppedOverTheBus) {
    constexpr std::int16_t kQuarterPastThree = 183;  // units of five minutes
    StoreSettings([](SettingsRecord& record) { record.AlarmTime = kQuarterPastThree; });
    const SoundServer server;
    server.InstallIn(variables);
    const SinkRecording recording(server);
    const ChildProcess program = Start();
    clock.Set("2026-11-21 12:15:00");
    WaitForLog("03:15 PM : ");
    recording.WaitForSound();
    clock.Set("2026-11-21 12:15:30");  // past the ten seconds in which it comes back
    EXPECT_EQ(Ctl({"athan", "stop"}).status, 0);
    recording.Continue(3.0);  // what was on its way comes late on a busy machine
    const std::size_t beeps = SoundsIn(recording.Taken()).size();
    recording.Continue(4.0);  // a beep comes every three seconds
    EXPECT_EQ(SoundsIn(recording.Taken()).size(), beeps);
}

TEST_F(ServiceProgramTest, JournalGetsTheWeightOfEachLine) {
    std::ofstream(home / "service.err").close();
    struct stat status = {};
    ::stat((home / "service.err").c_str(), &status);
    variables["JOURNAL_STREAM"] =
        std::to_string(status.st_dev) + ":" + std::to_string(status.st_ino);
    ChildProcess program = Start();
    program.Signal(SIGTERM);
    program.Wait();
    EXPECT_THAT(Log(), StartsWith("<5>Horavex "));
    EXPECT_THAT(Log(), EndsWith("\n<5>ends: SIGTERM\n"));
}

TEST_F(ServiceProgramTest, SecondOneSaysSoAndFailsForGood) {
    const ChildProcess first = Start();
    ChildProcess second = Launch("second");
    EXPECT_EQ(second.Wait(), 2);
    EXPECT_THAT(Log("second"), EndsWith("Horavex is already running in this session\n"));
    EXPECT_TRUE(first.IsRunning());
}

TEST_F(ServiceProgramTest, FaceThatThereIsNotCannotBeShown) {
    const ChildProcess program = Start();
    const ProgramRun run = Ctl({"show"});
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.err, HasSubstr("it runs without a face"));
    EXPECT_TRUE(program.IsRunning());
}

TEST_F(ServiceProgramTest, QuietIsTold) {
    const ChildProcess program = Start();
    EXPECT_EQ(Ctl({"quiet", "30"}).status, 0);
    WaitForLog("quiet until 2026-11-21T15:");
}

TEST_F(ServiceProgramTest, LogThatNobodyReadsSilencesNothing) {
    Environment all = variables;
    clock.InstallIn(all);
    const std::string command = "exec " + BuildPath("bin/horavex-terminal") + " --no-face";
    const ChildProcess program({"bash", "-c", command + " 2> >(head -n 1)"}, all, home / "out",
                               home / "err");
    WaitUntil("the start", [&] { return !ContentOf(home / "out").empty(); });
    WaitForStatus("\"place\":\"Mecca");
    EXPECT_EQ(Ctl({"athan", "now"}).status, 0);
    WaitForStatus("\"athanPlaying\":true");
    EXPECT_EQ(Ctl({"athan", "stop"}).status, 0);
    WaitForStatus("\"athanPlaying\":false");
    EXPECT_TRUE(program.IsRunning());
}

TEST_F(ServiceProgramTest, OfTwoThatStartAtOnceOneRuns) {
    for (int round = 0; round < 5; ++round) {
        std::vector<std::unique_ptr<ChildProcess>> both;
        for (const char* name : {"first", "second"}) {
            both.push_back(std::make_unique<ChildProcess>(Run(name)));
        }
        WaitUntil("an end", [&] { return both[0]->IsRunning() != both[1]->IsRunning(); });
        const std::size_t ended = both[0]->IsRunning() ? 1 : 0;
        EXPECT_EQ(both[ended]->Wait(), 2);
        EXPECT_THAT(Log(ended == 0 ? "first" : "second"), HasSubstr("is already running"));
        EXPECT_TRUE(both[1 - ended]->IsRunning());
        both[1 - ended]->Signal(SIGTERM);
        both[1 - ended]->Wait();
    }
}

TEST_F(ServiceProgramTest, HundredStartsThatAreStoppedAtAnyMomentLeaveNothingBehind) {
    const auto files = [this] {
        std::set<std::string> paths;
        for (const auto& entry : fs::recursive_directory_iterator(home.Path())) {
            paths.insert(entry.path());
        }
        return paths;
    };
    Run("service").Signal(SIGTERM);
    std::ofstream(home / "run/horavex.lock").close();  // is kept, and claims nothing
    const std::set<std::string> before = files();
    for (int start = 0; start < 100; ++start) {
        ChildProcess program = Run("service");
        std::this_thread::sleep_for(std::chrono::milliseconds(2 * start));
        program.Signal(start % 2 == 0 ? SIGTERM : SIGKILL);
        program.Wait();
    }
    EXPECT_EQ(files(), before);
    const ChildProcess program = Start();
    EXPECT_TRUE(program.IsRunning());
}

}  // namespace
}  // namespace horavex
