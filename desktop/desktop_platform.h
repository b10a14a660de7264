#pragma once

#include "desktop/face/azan_face.h"
#include "desktop/face/qt_face.h"
#include "desktop/form_window/form_windows.h"
#include "desktop/ports/bus_pump.h"
#include "desktop/ports/qt_dialogs.h"
#include "desktop/ports/qt_event_loop.h"
#include "desktop/ports/qt_formats.h"
#include "desktop/ports/qt_media_players.h"
#include "desktop/ports/qt_network.h"
#include "desktop/ports/qt_notices.h"
#include "desktop/ports/qt_shell.h"
#include "desktop/ports/qt_tray.h"
#include "desktop/ports/qt_whereabouts.h"
#include "desktop/ports/qt_windows.h"
#include "desktop/ports/session_watch.h"
#include "desktop/ports/toolkit_language.h"
#include "linux/bus/session_broadcast.h"
#include "linux/erfa_almanac.h"
#include "linux/instance_lock.h"
#include "linux/posix_files.h"
#include "linux/registry_file.h"
#include "linux/shared_looks.h"
#include "linux/sound/beep.h"
#include "linux/sound/pulse_player.h"
#include "linux/sound/sound_file.h"
#include "linux/system_clock.h"
#include "linux/zone_database.h"
#include "platform/platform.h"

namespace horavex {

/// The ports over the user's desktop, installed as long as it lives. Needs an application.
class DesktopPlatform {
public:
    DesktopPlatform();
    ~DesktopPlatform();
    DesktopPlatform(const DesktopPlatform&) = delete;
    DesktopPlatform& operator=(const DesktopPlatform&) = delete;

private:
    Layouts AllLayouts();
    void LeaveBuses();

    SharedLooks looks_;
    SystemClock clock_;
    QtEventLoop eventLoop_;
    PosixFiles files_;
    ProgramFolder folder_;
    QtFormats formats_;
    horavex::Beep beep_;
    QtDialogs dialogs_;
    RegistryFile registry_;
    InstanceLock instanceLock_;
    QtFace face_{SpeakLanguageOfPack};
    FormWindows formWindows_;
    QtWindows windows_;
    QtTray tray_;
    QtShell shell_;
    QtNetwork network_;
    AzanFace athanFace_;
    SoundFile audioFile_;
    PulsePlayer audioPlayer_;
    ZoneDatabase zoneRules_;
    QtWhereabouts whereabouts_;
    QtNotices notices_;
    QtMediaPlayers mediaPlayers_;
    SessionWatch session_;
    ErfaAlmanac almanac_;
    SessionBroadcast broadcast_;
    BusPump busPump_;
    Platform platform_{clock_,    eventLoop_,    files_,     folder_,      formats_,   dialogs_,
                       registry_, instanceLock_, face_,      windows_,     tray_,      shell_,
                       network_,  athanFace_,    audioFile_, audioPlayer_, zoneRules_, whereabouts_,
                       notices_,  mediaPlayers_, session_,   almanac_,     broadcast_};
};

}  // namespace horavex
