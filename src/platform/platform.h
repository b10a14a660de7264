#pragma once

#include "platform/almanac.h"
#include "platform/audio_file.h"
#include "platform/audio_player.h"
#include "platform/broadcast.h"
#include "platform/clock.h"
#include "platform/desktop_session.h"
#include "platform/dialogs.h"
#include "platform/event_loop.h"
#include "platform/face.h"
#include "platform/files.h"
#include "platform/instance_guard.h"
#include "platform/media_players.h"
#include "platform/network.h"
#include "platform/notices.h"
#include "platform/program_folder.h"
#include "platform/regional_formats.h"
#include "platform/registry_store.h"
#include "platform/shell.h"
#include "platform/tray.h"
#include "platform/whereabouts.h"
#include "platform/windows.h"
#include "platform/zone_rules.h"

namespace horavex {

/// Everything outside the system, as the front end installs it at start. The ports outlive
/// every call into the system.
struct Platform {
    Clock& clock;
    EventLoop& eventLoop;
    Files& files;
    const ProgramFolder& programFolder;
    RegionalFormats& formats;
    Dialogs& dialogs;
    RegistryStore& registry;
    InstanceGuard& instanceGuard;
    Face& face;  // in the window of frmMain
    Windows& windows;
    Tray& tray;
    Shell& shell;
    Network& network;
    Face& athanFace;  // in the window of frmAzan
    AudioFile& audioFile;
    AudioPlayer& audioPlayer;
    const ZoneRules& zoneRules;
    Whereabouts& whereabouts;
    Notices& notices;
    MediaPlayers& mediaPlayers;
    DesktopSession& session;
    const Almanac& almanac;
    Broadcast& broadcast;
};

/// Installs the ports; nullptr takes them away again.
void InstallPlatform(const Platform* platform);

/// The installed ports. Calling it before InstallPlatform is a programming error and aborts.
const Platform& Ports();

}  // namespace horavex
