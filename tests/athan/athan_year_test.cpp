// A year of athans with a user who stops, pauses and tries sounds at any moment, and with devices
// and files that come and go. The ticks, the alert and the player are the real ones.

#include <algorithm>
#include <cmath>
#include <random>

#include "athan/athan_state.h"
#include "athan/player.h"
#include "athan/sound.h"
#include "engine/day_driver.h"
#include "shell/tick.h"
#include "support/program_test.h"
#include "windows/frm_azan.h"

namespace horavex {
namespace {

constexpr int kSecondsWatched = 14;
constexpr int kSecond = 200;  // bytes of a sound
const std::string kFolder = "/program/Athan/";

struct AthanYear : ProgramTest {
    AthanYear() {
        SetClock(2026, 1, 1, 0, 0, 0);
        StartAgain();
        ActiveSettings.AlarmTime = 0;
    }

    int Random(int below) { return static_cast<int>(random() % static_cast<unsigned>(below)); }
    bool OneIn(int chances) { return Random(chances) == 0; }

    void PressStop() { platform.athanFace.onFSCommand("IDC_FS_Stop", ""); }

    /// Another sound, device and athan type for every athan.
    void ChangeTheWorld() {
        for (const std::string name : {"athan.mp3", "fagr_athan.mp3"}) {
            const auto length = static_cast<std::size_t>(Random(12 * kSecond));
            platform.audioFile.sounds[kFolder + name] = {Bytes(length), 100, {1}};
            if (OneIn(10)) {
                platform.audioFile.sounds.erase(kFolder + name);
            }
        }
        platform.audioPlayer.hasDevice = !OneIn(6);
        const auto type = static_cast<std::int16_t>(OneIn(4) ? 1 + Random(2) : 3);
        ActiveSettings.AthanType = type;
        Settings.AthanType = OneIn(10) ? 1 : type;
    }

    /// What a user or the machine does in a second.
    void Act() {
        switch (Random(24)) {
            case 0:
            case 1:
                return PressStop();
            case 2:
                return PauseSound();
            case 3:
                return StopSound();
            case 4:
                return PlayFile(kFolder + "athan.mp3");
            case 5:
                return platform.audioPlayer.LoseDevice();
            case 6:
                return frmAzan->UserClose();
            case 7:
                return fMessage->Unload();
            default:
                return;
        }
    }

    /// What must hold at every moment.
    void ExpectSound() {
        EXPECT_LE(platform.audioPlayer.Queued(), 2U);
        EXPECT_LE(platform.audioFile.longestRead, static_cast<std::size_t>(kSecond));
        EXPECT_TRUE(Paused == 0 || IsPlaying()) << "a pause is a part of a play";
        EXPECT_TRUE(!IsPlaying() || platform.audioFile.IsOpen());
        if (athanActive != 0) {
            EXPECT_TRUE(frmAzan->Visible());
            EXPECT_GE(frmAzan->Top(), 0.0) << "an athan that is up has its window on the screen";
        } else {
            EXPECT_TRUE(!frmAzan->IsLoaded() || frmAzan->Top() < 0.0);
        }
        const auto count = [this](const char* call) {
            return std::count(platform.desktop.calls.begin(), platform.desktop.calls.end(), call);
        };
        EXPECT_EQ(count("load frmAzan") - count("unload frmAzan"), frmAzan->IsLoaded() ? 1 : 0);
    }

    void RunAthan(Date day, std::size_t prayer) {
        platform.desktop.calls.clear();
        if (frmAzan->IsLoaded()) {
            platform.desktop.calls.emplace_back("load frmAzan");
        }
        ChangeTheWorld();
        platform.clock.Set(day + std::ceil(TodayTimes[prayer] * kSecondsPerDay) / kSecondsPerDay);
        const double end = platform.clock.SteadySeconds() + kSecondsWatched;
        while (platform.clock.SteadySeconds() < end) {
            if (OneIn(3)) {
                platform.loop.After(0.1 * Random(20), [this] { Act(); });
            }
            tmrUpdate_Timer();
            Act();
            platform.audioPlayer.FinishBlock();
            frmAzan->Timer1.Tick();
            platform.loop.Pump();
            ExpectSound();
            platform.clock.Advance(1.0);
        }
    }

    /// The window of a silent athan stays until its user stops it; then all is at rest.
    void EndDay() {
        if (frmAzan->IsLoaded()) {
            PressStop();
        } else {
            StopSound();
        }
        EXPECT_EQ(athanActive, 0);
        EXPECT_FALSE(IsPlaying());
        EXPECT_EQ(Paused, 0);
        EXPECT_EQ(platform.audioPlayer.Queued(), 0U);
    }

    std::minstd_rand random{20260101};
};

TEST_F(AthanYear, LeavesNoFlagBehindAndNoMoreThanOneWindow) {
    const Date firstDay = DateSerial(2026, 1, 1);
    const std::size_t prayers[] = {0, 2, 3, 4, 5};
    int sounded = 0;
    for (int day = 0; day < 365 && !HasFailure(); ++day) {
        platform.clock.Set(firstDay + day);
        tmrUpdate_Timer();
        const int before = platform.audioPlayer.starts;
        RunAthan(firstDay + day, prayers[day % 5]);
        RunAthan(firstDay + day, prayers[(day + 2) % 5]);
        sounded += platform.audioPlayer.starts > before ? 1 : 0;
        EndDay();
    }
    EXPECT_GT(sounded, 200) << "most days were not silent";
    EXPECT_TRUE(platform.dialogs.messages.empty());
}

}  // namespace
}  // namespace horavex
