#pragma once

#include "lib/waves.h"

namespace horavex {

/// The sound in a large, soft room, which goes on answering for the tail, in seconds.
StereoSound PlayInRoom(const StereoSound& dry, double tail);

}  // namespace horavex
