#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/program_state.h"
#include "engine/day_driver.h"
#include "linux/erfa_almanac.h"
#include "linux/posix_files.h"
#include "linux/zone_database.h"
#include "platform/absent_desktop.h"
#include "platform/fixed_formats.h"
#include "platform/fixed_whereabouts.h"
#include "platform/manual_clock.h"
#include "platform/memory_registry.h"
#include "platform/platform.h"
#include "platform/recording_desktop.h"
#include "platform/scripted_event_loop.h"
#include "support/build_folder.h"

namespace horavex {

/// Calculates without a window; the qibla is not asked for.
class QuietHost : public DayHost {
public:
    void ReportProgress(double) override {}
    void ComputeQibla() override {}
    double QiblaBearing() override { return 0.0; }
    void RunSetAction() override {}
    void SetFlashVariables() override {}
};

/// A fresh process over the program folder that the build has compiled; everything else is in
/// memory.
class BuiltData : public testing::Test {
protected:
    BuiltData() {
        InstallPlatform(&platform_);
        ResetProgramState();
        InstallDayHost(&host_);
    }
    ~BuiltData() override {
        ResetProgramState();
        InstallPlatform(nullptr);
    }

    PosixFiles files;
    ProgramFolder folder{files, BuiltProgramFolder(), BuiltProgramFolder()};
    RecordingDialogs dialogs;

private:
    QuietHost host_;
    ManualClock clock_;
    ScriptedEventLoop loop_{clock_};
    FixedFormats formats_;
    MemoryRegistry registry_;
    FixedInstanceGuard instanceGuard_;
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
    Platform platform_{clock_,       loop_,      files,          folder,     formats_,
                       dialogs,      registry_,  instanceGuard_, face_,      windows_,
                       tray_,        shell_,     network_,       athanFace_, audioFile_,
                       audioPlayer_, zoneRules_, whereabouts_,   notices_,   mediaPlayers_,
                       session_,     almanac_,   broadcast_};
};

}  // namespace horavex
