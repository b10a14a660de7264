#pragma once

#include <functional>

#include "ctl/console_files.h"
#include "ctl/console_formats.h"
#include "engine/day_driver.h"
#include "linux/erfa_almanac.h"
#include "linux/held_files.h"
#include "linux/instance_lock.h"
#include "linux/registry_file.h"
#include "linux/system_clock.h"
#include "linux/zone_database.h"
#include "platform/absent_desktop.h"
#include "platform/fixed_whereabouts.h"
#include "platform/platform.h"

namespace horavex {

/// There is no event loop at the command line: nothing is ever pending.
class ConsoleEventLoop : public EventLoop {
public:
    void Pump() override {}
    void Rest(int milliseconds) override { Sleep(milliseconds); }
    void Sleep(int milliseconds) override;
    [[noreturn]] void EndProcess() override;
};

/// Message boxes become lines on standard error.
class ConsoleDialogs : public Dialogs {
public:
    void ShowMessage(const std::string& text, const std::string& title, MessageIcon icon) override;
    std::string OpenFile(const FileRequest&) override { return {}; }
    void Beep() override {}
    std::string SaveFile(const FileRequest&, const std::string&) override { return {}; }
};

/// The system's clock, or a clock of the user's choice.
class ConsoleClock : public Clock {
public:
    Date Now() const override { return choice_ ? choice_() : system_.Now(); }
    Date UniversalNow() const override { return system_.UniversalNow(); }
    double SteadySeconds() const override { return system_.SteadySeconds(); }
    ClockOffset OffsetOn(Date day) const override { return system_.OffsetOn(day); }
    ClockOffset OffsetAt(Date local) const override { return system_.OffsetAt(local); }

    /// Shows that moment for good.
    void StandAt(Date moment);

    /// Runs as the clocks of a place do that keep the chosen zone of the database or, without one,
    /// that of the working settings, their days of daylight saving included.
    void RunInWorkingZone();

private:
    SystemClock system_;
    std::function<Date()> choice_;
};

/// Calculates without any window or wait.
class ConsoleHost : public DayHost {
public:
    void ReportProgress(double) override {}
    void ComputeQibla() override;
    double QiblaBearing() override;
    YearRules RulesOf(std::int16_t year) override;
    void RunSetAction() override {}
    void SetFlashVariables() override {}
};

/// The ports of the command line over the real system, installed as long as it lives.
class ConsolePlatform {
public:
    ConsolePlatform();
    ~ConsolePlatform();
    ConsolePlatform(const ConsolePlatform&) = delete;
    ConsolePlatform& operator=(const ConsolePlatform&) = delete;

    /// The program's data stay as they are from now on.
    void HoldData() { dataFiles_.Hold(); }

    ConsoleClock clock;
    ConsoleFiles files;
    ConsoleFormats formats;

private:
    HeldFiles dataFiles_{files};
    ProgramFolder folder_;
    RegistryFile registry_;
    InstanceLock instanceLock_;
    ConsoleEventLoop eventLoop_;
    ConsoleDialogs dialogs_;
    ConsoleHost host_;
    AbsentFace face_;
    AbsentWindows windows_;
    AbsentTray tray_;
    AbsentShell shell_;
    AbsentNetwork network_;
    AbsentFace athanFace_;
    AbsentAudioFile audioFile_;
    AbsentAudioPlayer audioPlayer_;
    ZoneDatabase zoneRules_;
    FixedWhereabouts whereabouts_;  // none
    AbsentNotices notices_;
    AbsentMediaPlayers mediaPlayers_;
    AbsentSession session_;
    ErfaAlmanac almanac_;
    AbsentBroadcast broadcast_;
    Platform platform_{clock,     eventLoop_,    files,      folder_,      formats,    dialogs_,
                       registry_, instanceLock_, face_,      windows_,     tray_,      shell_,
                       network_,  athanFace_,    audioFile_, audioPlayer_, zoneRules_, whereabouts_,
                       notices_,  mediaPlayers_, session_,   almanac_,     broadcast_};
};

}  // namespace horavex
