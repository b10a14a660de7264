#pragma once

#include "linux/bus/session_broadcast.h"
#include "linux/erfa_almanac.h"
#include "linux/instance_lock.h"
#include "linux/posix_files.h"
#include "linux/registry_file.h"
#include "linux/sound/pulse_player.h"
#include "linux/sound/sound_file.h"
#include "linux/system_clock.h"
#include "linux/system_network.h"
#include "linux/zone_database.h"
#include "platform/absent_desktop.h"
#include "platform/fixed_whereabouts.h"
#include "platform/platform.h"
#include "terminal/ports/bus_reader.h"
#include "terminal/ports/pack_formats.h"
#include "terminal/ports/poll_event_loop.h"
#include "terminal/ports/terminal_session_watch.h"

namespace horavex {

/// What each face brings along itself, and what says in its own way what happens.
struct TerminalParts {
    Dialogs& dialogs;
    Face& face;
    Windows& windows;
    Tray& tray;
    Shell& shell;
    Face& athanFace;
    Notices& notices;
    SessionBroadcast& broadcast;
};

/// The ports of a program without a toolkit, installed as long as it lives: the system itself, and
/// the parts that it was given. Loop and parts live longer.
class TerminalPlatform {
public:
    TerminalPlatform(PollEventLoop& loop, const TerminalParts& parts);
    ~TerminalPlatform();
    TerminalPlatform(const TerminalPlatform&) = delete;
    TerminalPlatform& operator=(const TerminalPlatform&) = delete;

private:
    SystemClock clock_;
    PosixFiles files_;
    ProgramFolder folder_;
    PackFormats formats_;
    RegistryFile registry_;
    InstanceLock instanceLock_;
    SystemNetwork network_;
    SoundFile audioFile_;
    PulsePlayer audioPlayer_;
    ZoneDatabase zoneRules_;
    FixedWhereabouts whereabouts_;  // none
    AbsentMediaPlayers mediaPlayers_;
    TerminalSessionWatch session_;
    ErfaAlmanac almanac_;
    BusReader busReader_;
    Platform platform_;
};

}  // namespace horavex
