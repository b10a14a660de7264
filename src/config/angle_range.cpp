#include "config/angle_range.h"

#include "config/working_options.h"

namespace horavex {

namespace {

constexpr std::int16_t kLargest = 20;  // degrees; no convention asks for more
constexpr std::int16_t kSmallest = 4;  // degrees

}  // namespace

AngleLimits AngleRange() {
    const bool hasRule = WorkingRule() != HighLatitudeRule::kNone;
    return hasRule ? AngleLimits{kLargest, AngleBand.middle, kSmallest} : AngleBand;
}

}  // namespace horavex
