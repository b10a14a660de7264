#pragma once

#include "lib/instruments.h"

namespace horavex {

/// Two channels of one length.
struct StereoSound {
    Sound left;
    Sound right;
};

/// The sound in a large, soft room, which answers a little differently from either side, faded at
/// both ends; its loudest moment at kLoudest of full scale.
StereoSound PlayInRoom(const Sound& dry);
inline constexpr double kLoudest = 0.7;

}  // namespace horavex
