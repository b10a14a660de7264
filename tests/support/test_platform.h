#pragma once

#include "linux/erfa_almanac.h"
#include "platform/failing_files.h"
#include "platform/fixed_formats.h"
#include "platform/fixed_whereabouts.h"
#include "platform/fixed_zone_rules.h"
#include "platform/manual_clock.h"
#include "platform/memory_audio.h"
#include "platform/memory_files.h"
#include "platform/memory_registry.h"
#include "platform/platform.h"
#include "platform/recording_broadcast.h"
#include "platform/recording_desktop.h"
#include "platform/scripted_event_loop.h"
#include "platform/scripted_network.h"
#include "platform/scripted_session.h"

namespace horavex {

/// One of each port in memory, installed as long as it lives, over the state of a fresh process.
/// The one program folder is "/program"; the wall clock stands at noon of Saturday, 21 November
/// 2026. One at a time.
class TestPlatform {
public:
    TestPlatform();
    ~TestPlatform();
    TestPlatform(const TestPlatform&) = delete;
    TestPlatform& operator=(const TestPlatform&) = delete;

    ManualClock clock;
    ScriptedEventLoop loop{clock};
    MemoryFiles files;
    /// What the system sees of files; passes everything until it is told to fail.
    FailingFiles failingFiles{files};
    ProgramFolder folder{failingFiles, "/program", "/program"};
    FixedFormats formats;
    RecordingDialogs dialogs;
    MemoryRegistry registry;
    FixedInstanceGuard instanceGuard;
    DesktopLog desktop;
    RecordingFace face{desktop};
    RecordingWindows windows{desktop};
    RecordingTray tray{desktop};
    RecordingShell shell{desktop};
    ScriptedNetwork network;
    RecordingFace athanFace{desktop, "athan "};
    MemoryAudioFile audioFile{desktop};
    MemoryAudioPlayer audioPlayer;
    FixedZoneRules zoneRules;
    FixedWhereabouts whereabouts;
    RecordingNotices notices;
    RecordingMediaPlayers mediaPlayers;
    ScriptedSession session;
    ErfaAlmanac almanac;
    RecordingBroadcast broadcast;

private:
    Platform platform_{clock,    loop,          failingFiles, folder,      formats,   dialogs,
                       registry, instanceGuard, face,         windows,     tray,      shell,
                       network,  athanFace,     audioFile,    audioPlayer, zoneRules, whereabouts,
                       notices,  mediaPlayers,  session,      almanac,     broadcast};
};

}  // namespace horavex
