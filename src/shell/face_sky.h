#pragma once

#include <memory>

#include "base/date.h"

namespace horavex {

struct DaySky;

/// The sky over the accepted place at a time of the clock that its times go by. It is worked out
/// anew with each minute, and at once for another place or clock; until then it is the same object.
std::shared_ptr<const DaySky> SkyOfFace(Date now);

}  // namespace horavex
