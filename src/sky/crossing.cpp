#include "sky/crossing.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace horavex {

namespace {

constexpr double kPrecision = 0.1 / kSecondsPerDay;
constexpr double kHalfTurn = 180.0;  // degrees

struct Sample {
    Date instant;
    double value;

    bool IsAbove() const { return value >= 0.0; }
};

bool PassesZero(const Sample& before, const Sample& after) {
    return before.IsAbove() != after.IsAbove() && std::abs(after.value - before.value) < kHalfTurn;
}

Crossing Refined(const SkyQuantity& quantity, Sample before, Sample after) {
    while (after.instant - before.instant > kPrecision) {
        const Date middle = std::midpoint(before.instant, after.instant);
        const Sample between{middle, quantity(middle)};
        (between.IsAbove() == before.IsAbove() ? before : after) = between;
    }
    return {after.instant, after.IsAbove()};
}

/// Hands over the passages in their order until one of them is what was looked for.
template <class Found>
void WalkCrossings(const SkyQuantity& quantity, Date from, Date end, double step, Found isLast) {
    Sample before{from, quantity(from)};
    while (before.instant < end) {
        const Date next = std::min(before.instant + step, end);
        const Sample after{next, quantity(next)};
        if (PassesZero(before, after) && isLast(before, after)) {
            return;
        }
        before = after;
    }
}

}  // namespace

std::vector<Crossing> CrossingsOf(const SkyQuantity& quantity, Date from, Date end, double step) {
    std::vector<Crossing> crossings;
    WalkCrossings(quantity, from, end, step, [&](const Sample& before, const Sample& after) {
        crossings.push_back(Refined(quantity, before, after));
        return false;
    });
    return crossings;
}

std::optional<Date> FirstCrossing(const SkyQuantity& quantity, Date from, Date end, double step,
                                  bool rising) {
    std::optional<Date> first;
    WalkCrossings(quantity, from, end, step, [&](const Sample& before, const Sample& after) {
        if (after.IsAbove() == rising) {
            first = Refined(quantity, before, after).instant;
        }
        return first.has_value();
    });
    return first;
}

}  // namespace horavex
