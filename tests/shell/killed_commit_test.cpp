// Commits of the whole program over files of a disk, in processes that are killed at any moment.

#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <thread>

#include "base/program_state.h"
#include "linux/left_overs.h"
#include "linux/posix_files.h"
#include "linux/registry_file.h"
#include "support/build_folder.h"
#include "support/program_test.h"
#include "support/temporary_folder.h"

namespace horavex {
namespace {

using testing::AnyOf;
using testing::Eq;
using testing::IsEmpty;

using Microseconds = std::chrono::duration<int, std::micro>;

constexpr const char* kKey = "Software\\Horavex\\Settings";

/// What the environment asks for, or so many that they take seconds.
int Kills() {
    const char* number = std::getenv("HORAVEX_KILLS");
    return number == nullptr ? 100 : std::atoi(number);
}

/// What a commit stores.
struct Stored {
    Bytes active;
    Bytes working;
    std::string ishaAngle;
};

class KilledCommitTest : public testing::Test {
protected:
    KilledCommitTest() {
        InstallPlatform(&ports_);
        registry.CreateKey(kKey);
        registry.SetValue(kKey, "Isha Dep Angle", "18");
        BindWindows();
        frmMain->Load();
    }

    /// One of two commits that differ in all that is stored.
    static void Commit(int which) {
        HoravexMainForm->hsDepr.UserSlide(17 + which);
        HoravexMainForm->hsDepr2.UserSlide(16 + which);
        HoravexMainForm->hsAlarm.UserSlide(60 + which);
        HoravexMainForm->SettingsSet.UserClick();
    }

    /// Nothing is cached: what a program finds that starts now.
    Stored OnDisk() {
        RegistryFile fresh(disk, user / "registry.ini", user / "none.ini");
        std::string angle;
        fresh.QueryValue(kKey, "Isha Dep Angle", angle);
        return {ReadWhole(disk, user / "Dat/AI.DAT"), ReadWhole(disk, user / "Dat/Settings.DAT"),
                angle};
    }

    /// A copy of this process commits one thing after the other until it is killed.
    static void KillCommits(Microseconds after) {
        const pid_t process = ::fork();
        if (process == 0) {
            for (int n = 0;; ++n) {
                Commit(n % 2);
            }
        }
        std::this_thread::sleep_for(after);
        ::kill(process, SIGKILL);
        ::waitpid(process, nullptr, 0);
    }

    const TemporaryFolder user;
    PosixFiles disk;
    TestPlatform memory;  // what is neither file nor registry
    ProgramFolder folder{disk, user.Path(), BuiltProgramFolder()};
    RegistryFile registry{disk, user / "registry.ini", user / "none.ini"};

private:
    Platform ports_{memory.clock,
                    memory.loop,
                    disk,
                    folder,
                    memory.formats,
                    memory.dialogs,
                    registry,
                    memory.instanceGuard,
                    memory.face,
                    memory.windows,
                    memory.tray,
                    memory.shell,
                    memory.network,
                    memory.athanFace,
                    memory.audioFile,
                    memory.audioPlayer,
                    memory.zoneRules,
                    memory.whereabouts,
                    memory.notices,
                    memory.mediaPlayers,
                    memory.session,
                    memory.almanac,
                    memory.broadcast};
    LoggingHost host_{memory.desktop};
};

TEST_F(KilledCommitTest, EachFileIsOldOrNewAtAnyMoment) {
    Commit(0);
    const Stored first = OnDisk();
    const auto start = std::chrono::steady_clock::now();
    Commit(1);
    const auto one =
        std::chrono::duration_cast<Microseconds>(std::chrono::steady_clock::now() - start);
    const Stored second = OnDisk();
    ASSERT_NE(first.active, second.active);
    ASSERT_NE(first.working, second.working);
    ASSERT_NE(first.ishaAngle, second.ishaAngle);

    std::mt19937 random(1448);
    std::uniform_int_distribution<int> moment(0, 3 * one.count());
    for (int kill = 0; kill < Kills() && !HasFailure(); ++kill) {
        KillCommits(Microseconds(moment(random)));
        const Stored left = OnDisk();
        EXPECT_THAT(left.active, AnyOf(Eq(first.active), Eq(second.active)));
        EXPECT_THAT(left.working, AnyOf(Eq(first.working), Eq(second.working)));
        EXPECT_THAT(left.ishaAngle, AnyOf(first.ishaAngle, second.ishaAngle));
    }
    ClearLeftOvers({user.Path()});
    for (const auto& entry : std::filesystem::directory_iterator(user / "Dat")) {
        EXPECT_THAT(entry.path().filename(), AnyOf("AI.DAT", "Settings.DAT"));
    }
    ResetProgramState();
    BindWindows();
    memory.dialogs.messages.clear();
    frmMain->Load();
    EXPECT_THAT(memory.dialogs.messages, IsEmpty());
}

}  // namespace
}  // namespace horavex
