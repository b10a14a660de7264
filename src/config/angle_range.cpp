#include "config/angle_range.h"

#include "config/working_options.h"

namespace horavex {

namespace {

constexpr std::int16_t kLargest = 20;  // degrees; no convention asks for more
constexpr std::int16_t kSmallest = 4;  // degrees

}  // namespace

AngleLimits AngleRangeUnder(HighLatitudeRule rule, const AngleLimits& band) {
    return rule == HighLatitudeRule::kNone ? band : AngleLimits{kLargest, band.middle, kSmallest};
}

AngleLimits AngleRange() {
    return AngleRangeUnder(WorkingRule(), AngleBand);
}

}  // namespace horavex
