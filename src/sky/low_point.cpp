#include "sky/low_point.h"

#include <algorithm>

namespace horavex {

namespace {

constexpr double kDay = 24.0 * 60.0;  // minutes
constexpr double kLook = 20.0 / kDay;
constexpr double kStep = 10.0 / kDay;
constexpr double kPrecision = 0.1 / kSecondsPerDay;
constexpr double kGoldenPart = 0.6180339887498949;

Date LeastLook(const SkyQuantity& quantity, const SkySpan& span) {
    Date least = span.from;
    double low = quantity(least);
    for (Date look = span.from + kLook; look < span.end; look += kLook) {
        if (const double value = quantity(look); value < low) {
            least = look;
            low = value;
        }
    }
    return least;
}

/// Golden section: each step keeps one of the two looks inside of the span.
Date Narrowed(const SkyQuantity& quantity, SkySpan span) {
    const auto inner = [&span] { return span.end - kGoldenPart * (span.end - span.from); };
    const auto outer = [&span] { return span.from + kGoldenPart * (span.end - span.from); };
    double early = quantity(inner());
    double late = quantity(outer());
    while (span.end - span.from > kPrecision) {
        if (early < late) {
            span.end = outer();
            late = early;
            early = quantity(inner());
        } else {
            span.from = inner();
            early = late;
            late = quantity(outer());
        }
    }
    return (span.from + span.end) / 2.0;
}

}  // namespace

Date LeastOf(const SkyQuantity& quantity, const SkySpan& span) {
    const Date look = LeastLook(quantity, span);
    return Narrowed(quantity,
                    {std::max(look - kLook, span.from), std::min(look + kLook, span.end)});
}

SkySpan BelowZeroAround(const SkyQuantity& quantity, Date instant, double reach) {
    const auto before = CrossingsOf(quantity, instant - reach, instant, kStep);
    const auto after = CrossingsOf(quantity, instant, instant + reach, kStep);
    return {before.empty() ? instant - reach : before.back().instant,
            after.empty() ? instant + reach : after.front().instant};
}

}  // namespace horavex
