#pragma once

#include <gmock/gmock.h>

#include <cmath>

#include "athan/athan_choices.h"
#include "athan/athan_state.h"
#include "athan/player.h"
#include "base/int16.h"
#include "engine/day_driver.h"
#include "shell/tick.h"
#include "support/program_test.h"
#include "windows/frm_azan.h"

namespace horavex {

/// The whole program, not yet begun, whose clock a test moves second by second. The desktop has a
/// service for notifications; every sound lasts half a minute, the tone a second.
struct PrayerClock : ProgramTest {
    static constexpr int kSecondOfSound = 200;  // bytes

    PrayerClock() {
        for (const std::string name :
             {"athan", "fagr_athan", "athan1", "athan2", "athan3", "fagr_athan1", "fagr_athan2"}) {
            AddSound(SoundPath(name), 30);
        }
        AddSound(SoundPath("tone"), 1);
        platform.notices.hasService = true;
    }

    void Begin() {
        StartAgain();
        SetAthanType(kSoundAthan);
        ActiveSettings.AlarmTime = 0;
    }

    static std::string SoundPath(const std::string& name) {
        return "/program/Athan/" + name + ".mp3";
    }

    void AddSound(const std::string& path, int seconds) {
        platform.files.WriteWhole(path, Bytes(1));
        platform.audioFile.sounds[path] = {
            Bytes(static_cast<std::size_t>(seconds * kSecondOfSound)), 100, {1}};
    }

    static void SetAthanType(std::int16_t type) {
        Settings.AthanType = type;
        ActiveSettings.AthanType = type;
    }

    /// The first second in which a prayer of today has arrived.
    static Date Arrival(Prayer prayer) {
        return ShownDay.date + std::ceil(TodayTimes[prayer] * kSecondsPerDay) / kSecondsPerDay;
    }

    static Date Seconds(double seconds) { return seconds / kSecondsPerDay; }
    static Date Minutes(double minutes) { return minutes / 1440.0; }

    /// A second passes: the clock ticks, the sound goes on, the window rises.
    void PassSecond() {
        tmrUpdate_Timer();
        platform.audioPlayer.FinishBlock();
        frmAzan->Timer1.Tick();
        platform.loop.Pump();
        platform.clock.Advance(1.0);
    }

    /// The clock is put to a moment and runs so many seconds.
    void RunFrom(Date from, int seconds) {
        platform.clock.Set(from);
        Run(seconds);
    }

    void Run(int seconds) {
        const double end = platform.clock.SteadySeconds() + seconds;
        while (platform.clock.SteadySeconds() < end - 0.5) {
            PassSecond();
        }
    }

    /// The ten seconds of a prayer and two beside them.
    void RunThrough(Prayer prayer) { RunFrom(Arrival(prayer) - Seconds(1), 12); }

    int Sounded(const std::string& name) const {
        const auto& opened = platform.audioFile.opened;
        return static_cast<int>(std::count(opened.begin(), opened.end(), SoundPath(name)));
    }

    int NoticeCount() const { return static_cast<int>(platform.notices.shown.size()); }

    const Notice& LastNotice() const { return platform.notices.shown.back().second; }

    void PressStop() { platform.athanFace.onFSCommand("IDC_FS_Stop", ""); }
};

/// The same with its start behind it.
struct PrayerDay : PrayerClock {
    PrayerDay() { Begin(); }
};

}  // namespace horavex
