#include "moon/moon_row_labels.h"

#include <algorithm>
#include <iterator>

#include "calendar/moon_labels.h"

namespace horavex {

std::vector<std::string> MoonRowLabels(std::int16_t year, const MoonRows& newMoons) {
    const MoonMonthLabels table = BuildMoonMonthLabels(year);
    if (const auto slice = MoonLabelRows(year)) {
        const auto begin = table.begin();
        return {begin + static_cast<std::ptrdiff_t>(slice->first),
                begin + static_cast<std::ptrdiff_t>(slice->last) + 1};
    }
    std::vector<std::string> labels;
    std::transform(newMoons.begin(), newMoons.begin() + kMoonRows, std::back_inserter(labels),
                   HijriLabelForMoonRow);
    return labels;
}

}  // namespace horavex
