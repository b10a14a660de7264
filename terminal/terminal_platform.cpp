#include "terminal/terminal_platform.h"

#include <utility>
#include <vector>

#include "linux/folders.h"
#include "linux/left_overs.h"
#include "linux/program_stores.h"

namespace horavex {

namespace {

// The folders that the program writes into.
std::vector<std::string> OwnFolders() {
    return {FindProgramFolders().user, ConfigHome() + "/horavex"};
}

}  // namespace

TerminalPlatform::TerminalPlatform(PollEventLoop& loop, const TerminalParts& parts)
    : folder_(FindProgramFolder(files_)),
      registry_(FindRegistry(files_)),
      instanceLock_(InstanceLockPath()),
      audioPlayer_([&loop](PollEventLoop::Action event) { loop.Post(std::move(event)); }),
      session_(loop),
      busReader_(loop, parts.broadcast),
      platform_{clock_,        loop,        files_,         folder_,         formats_,
                parts.dialogs, registry_,   instanceLock_,  parts.face,      parts.windows,
                parts.tray,    parts.shell, network_,       parts.athanFace, audioFile_,
                audioPlayer_,  zoneRules_,  whereabouts_,   parts.notices,   mediaPlayers_,
                session_,      almanac_,    parts.broadcast} {
    InstallPlatform(&platform_);
    ClearLeftOvers(OwnFolders());
}

TerminalPlatform::~TerminalPlatform() {
    InstallPlatform(nullptr);
}

}  // namespace horavex
