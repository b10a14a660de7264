// What a user sets in motion, with each operation of each port failing at each of its positions:
// the program goes on, files are old or new, and the next start comes up.

#include "shell/failing_ports.h"

#include <memory>
#include <utility>

#include "base/fault.h"
#include "base/program_state.h"
#include "platform/fault_box.h"
#include "shell/tick.h"
#include "support/built_files.h"
#include "support/program_test.h"
#include "windows/horavex_main_form.h"

namespace horavex {
namespace {

constexpr const char* kActive = "/program/Dat/AI.DAT";
constexpr const char* kWorking = "/program/Dat/Settings.DAT";
constexpr const char* kExported = "/home/year.txt";
constexpr const char* kSound = "/program/Athan/athan.mp3";
// Each position is tried where a start takes little; under the sanitizers it takes ten times that.
#ifdef __SANITIZE_ADDRESS__
constexpr int kStep = 7;
#else
constexpr int kStep = 1;
#endif
constexpr const char* kKey = "Software\\Horavex\\Settings";

/// A whole program that has been set up before, in a process of its own as it were.
class Program {
public:
    explicit Program(const MemoryFiles& files = BuiltFiles()) {
        InstallPlatform(&failing_);
        platform.files = files;
        platform.registry.CreateKey(kKey);
        for (const auto& [name, value] : {std::pair("Isha Dep Angle", "18"),
                                          {"Update Key", "RWkey"},
                                          {"Zone Name", "Asia/Riyadh"}}) {
            platform.registry.SetValue(kKey, name, value);
        }
        network.connection = {true, kLanConnection};
        network.answer = [] { return "5"; };
        audioFile.sounds[kSound] = {Bytes(2000), 100, {1}};
        zoneRules.Add("Asia/Riyadh", {3 * 3600, false});
        platform.dialogs.savedFile = kExported;
        BindWindows();
    }

    NthCall call;  // of the ports below
    TestPlatform platform;
    FailingShell shell{platform.desktop, call};
    FailingNetwork network{call};
    FailingAudioFile audioFile{platform.desktop, call};
    FailingAudioPlayer audioPlayer{platform.loop, call};
    FailingZoneRules zoneRules{call};

private:
    Platform failing_{platform.clock,
                      platform.loop,
                      platform.failingFiles,
                      platform.folder,
                      platform.formats,
                      platform.dialogs,
                      platform.registry,
                      platform.instanceGuard,
                      platform.face,
                      platform.windows,
                      platform.tray,
                      shell,
                      network,
                      platform.athanFace,
                      audioFile,
                      audioPlayer,
                      zoneRules,
                      platform.whereabouts,
                      platform.notices,
                      platform.mediaPlayers,
                      platform.session,
                      platform.almanac,
                      platform.broadcast};
    LoggingHost host_{platform.desktop};
};

/// Operations of a kind, of which the n-th from now on fails; 0 lets all pass.
struct Failure {
    const char* name;
    void (*pick)(Program& program, int n);
    int (*calls)(const Program& program);
};

constexpr Failure kFailures[] = {
    {"file",
     [](Program& program, int n) {
         program.platform.failingFiles.FailCall(n, WriteFailure::kHalfWay);
     },
     [](const Program& program) { return program.platform.failingFiles.Calls(); }},
    {"registry", [](Program& program, int n) { program.platform.registry.FailCall(n); },
     [](const Program& program) { return program.platform.registry.Calls(); }},
    {"other port", [](Program& program, int n) { program.call.Pick(n); },
     [](const Program& program) { return program.call.Calls(); }},
};

void Start(Program&) {
    frmMain->Load();
}

void Commit(Program&) {
    HoravexMainForm->Show();
    HoravexMainForm->hsDepr.UserSlide(17);
    HoravexMainForm->lstLanguage.UserSelect(1);
    HoravexMainForm->SettingsSet.UserClick();
}

void Export(Program&) {
    frmMain->mnuExport.UserClick();
}

// An athan from its first second until it has been heard, in its window.
void Athan(Program& program) {
    Settings.AthanType = kSoundAthan;
    ActiveSettings.AthanType = kSoundAthan;
    program.platform.clock.Set(DateSerial(2026, 11, 21) + TimeSerial(15, 15, 21));
    for (int second = 0; second < 12; ++second) {
        RunGuarded(tmrUpdate_Timer);
        program.platform.loop.Sleep(1000);
    }
    RunGuarded([&] { program.audioPlayer.PlayToTheEnd(); });
}

void Update(Program&) {
    frmMain->mnuUpdate.UserClick();
}

void SessionStart(Program&) {
    HoravexMainForm->Show();
    HoravexMainForm->chkAddToStartup.UserClick();
    HoravexMainForm->chkAddToStartup.UserClick();
}

void End(Program&) {
    EXPECT_THROW(frmMain->mnuExit.UserClick(), ProcessEnded);
}

struct Contents {
    Bytes active;
    Bytes working;
    Bytes exported;

    bool operator==(const Contents&) const = default;
};

Bytes ContentOf(Program& program, const char* path) {
    MemoryFiles& files = program.platform.files;
    return files.Exists(path) ? ReadWhole(files, path) : Bytes();
}

Contents ContentsOf(Program& program) {
    return {ContentOf(program, kActive), ContentOf(program, kWorking),
            ContentOf(program, kExported)};
}

/// What a user sets in motion, in a program that has been started before.
using Journey = void (*)(Program& program);

class FailingPortsTest : public testing::Test {
protected:
    /// Fails each operation of the journey in turn.
    static void ExpectThatNothingBreaks(Journey go, bool isStarted = true) {
        int all = 0;
        for (const Failure& failure : kFailures) {
            all += FailEach(failure, go, isStarted);
        }
        EXPECT_GT(all, 0) << "operations";
    }

private:
    /// Fails the n-th operation, and returns how many there were.
    static int Run(Program& program, const Failure& failure, int n, Journey go, bool isStarted) {
        if (isStarted) {
            frmMain->Load();
        }
        program.platform.dialogs.messages.clear();
        failure.pick(program, n);
        RunGuarded([&] { go(program); });
        const int calls = failure.calls(program);
        failure.pick(program, 0);
        return calls;
    }

    static int FailEach(const Failure& failure, Journey go, bool isStarted) {
        Contents before;
        Contents after;
        int calls = 0;
        {
            Program program;
            before = ContentsOf(program);
            calls = Run(program, failure, 0, go, isStarted);
            after = ContentsOf(program);
        }
        for (int n = 1; n <= calls && !HasFailure(); n += kStep) {
            SCOPED_TRACE(testing::Message() << failure.name << " " << n << " of " << calls);
            auto program = std::make_unique<Program>();
            Run(*program, failure, n, go, isStarted);
            const Contents left = ContentsOf(*program);
            EXPECT_TRUE(left.active == before.active || left.active == after.active);
            EXPECT_TRUE(left.working == before.working || left.working == after.working);
            EXPECT_TRUE(left.exported == before.exported || left.exported == after.exported);
            ExpectThatTheProgramGoesOnOrHasSaidWhyNot(*program);
            if (left != after) {
                ExpectThatTheNextStartComesUp(std::move(program));
            }
        }
        return calls;
    }

    static void ExpectThatTheProgramGoesOnOrHasSaidWhyNot(Program& program) {
        auto& messages = program.platform.dialogs.messages;
        if (!frmMain->Visible()) {
            EXPECT_EQ(messages.size(), 1U);
            return;
        }
        program.platform.face.variables.clear();
        messages.clear();
        RunGuarded(tmrUpdate_Timer);
        EXPECT_FALSE(program.platform.face.variables.empty());
        EXPECT_TRUE(messages.empty());
    }

    static void ExpectThatTheNextStartComesUp(std::unique_ptr<Program> program) {
        const MemoryFiles files = program->platform.files;
        program.reset();
        Program next(files);
        RunGuarded([] { frmMain->Load(); });
        EXPECT_TRUE(frmMain->Visible());
        EXPECT_TRUE(next.platform.dialogs.messages.empty());
    }
};

TEST_F(FailingPortsTest, StartComesUpOrSaysWhyNot) {
    ExpectThatNothingBreaks(Start, false);
}

TEST_F(FailingPortsTest, CommitLeavesEachFileOldOrNew) {
    ExpectThatNothingBreaks(Commit);
}

TEST_F(FailingPortsTest, ExportIsWholeOrNotThere) {
    ExpectThatNothingBreaks(Export);
}

TEST_F(FailingPortsTest, AthanIsOverAndTheClockGoesOn) {
    ExpectThatNothingBreaks(Athan);
}

TEST_F(FailingPortsTest, UpdateCheckEndsWithAWord) {
    ExpectThatNothingBreaks(Update);
}

TEST_F(FailingPortsTest, SessionsEntryIsWrittenOrNot) {
    ExpectThatNothingBreaks(SessionStart);
}

TEST_F(FailingPortsTest, ExitEnds) {
    ExpectThatNothingBreaks(End);
}

}  // namespace
}  // namespace horavex
