#include "moon/moon_row_labels.h"

#include <algorithm>
#include <iterator>

#include "calendar/moon_labels.h"
#include "moon/moon_phases.h"

namespace horavex {

std::vector<std::string> MoonRowLabels(std::int16_t year) {
    BuildMoonMonthLabels(year);
    if (const auto slice = MoonLabelRows(year)) {
        const auto begin = MoonMonthLabels.begin();
        return {begin + static_cast<std::ptrdiff_t>(slice->first),
                begin + static_cast<std::ptrdiff_t>(slice->last) + 1};
    }
    std::vector<std::string> labels;
    std::transform(NewMoonRows.begin(), NewMoonRows.begin() + kMoonRows, std::back_inserter(labels),
                   HijriLabelForMoonRow);
    return labels;
}

}  // namespace horavex
