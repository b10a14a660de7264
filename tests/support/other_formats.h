#pragma once

#include "platform/platform.h"

namespace horavex {

/// A platform with other regional formats.
inline Platform WithFormats(const Platform& former, RegionalFormats& formats) {
    return {former.clock,     former.eventLoop,   former.files,     former.programFolder,
            formats,          former.dialogs,     former.registry,  former.instanceGuard,
            former.face,      former.windows,     former.tray,      former.shell,
            former.network,   former.athanFace,   former.audioFile, former.audioPlayer,
            former.zoneRules, former.whereabouts, former.notices,   former.mediaPlayers,
            former.session,   former.almanac,     former.broadcast};
}

}  // namespace horavex
