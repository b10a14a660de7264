#pragma once

#include "platform/absent_desktop.h"
#include "platform/even_almanac.h"
#include "platform/fixed_formats.h"
#include "platform/fixed_whereabouts.h"
#include "platform/fixed_zone_rules.h"
#include "platform/manual_clock.h"
#include "platform/memory_files.h"
#include "platform/memory_registry.h"
#include "platform/platform.h"
#include "platform/recording_desktop.h"
#include "platform/scripted_event_loop.h"

namespace horavex {

/// The ports of a tool that calculates: nothing but memory, installed as long as it lives. The
/// program folder is "/program" and holds an empty text table.
class ToolPlatform {
public:
    ToolPlatform() : ToolPlatform(NoZones()) {}
    explicit ToolPlatform(const ZoneRules& zoneRules) : zoneRules_(zoneRules) {
        files.WriteWhole("/program/Dat/T.DAT", {});
        files.WriteWhole("/program/Dat/TI.DAT", {});
        InstallPlatform(&platform_);
    }
    ~ToolPlatform() { InstallPlatform(nullptr); }
    ToolPlatform(const ToolPlatform&) = delete;
    ToolPlatform& operator=(const ToolPlatform&) = delete;

    MemoryFiles files;

private:
    static const ZoneRules& NoZones() {
        static const FixedZoneRules none;
        return none;
    }

    ManualClock clock_;
    ScriptedEventLoop loop_{clock_};
    ProgramFolder folder_{files, "/program", "/program"};
    FixedFormats formats_;
    RecordingDialogs dialogs_;
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
    const ZoneRules& zoneRules_;
    FixedWhereabouts whereabouts_;  // none
    AbsentNotices notices_;
    AbsentMediaPlayers mediaPlayers_;
    AbsentSession session_;
    EvenAlmanac almanac_;
    AbsentBroadcast broadcast_;
    Platform platform_{clock_,       loop_,      files,          folder_,    formats_,
                       dialogs_,     registry_,  instanceGuard_, face_,      windows_,
                       tray_,        shell_,     network_,       athanFace_, audioFile_,
                       audioPlayer_, zoneRules_, whereabouts_,   notices_,   mediaPlayers_,
                       session_,     almanac_,   broadcast_};
};

}  // namespace horavex
