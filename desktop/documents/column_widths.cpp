#include "desktop/documents/column_widths.h"

#include <algorithm>
#include <cstddef>
#include <numeric>

namespace horavex {

namespace {

/// What one share is worth beside the columns that need more than theirs. Each of them makes it
/// less, so that others may join them.
double WorthOfShare(const std::vector<double>& needs, const std::vector<double>& shares,
                    double width) {
    double worth = width / std::accumulate(shares.begin(), shares.end(), 0.0);
    for (double before = worth + 1.0; worth < before;) {
        before = worth;
        double left = width;
        double sharing = 0.0;
        for (std::size_t column = 0; column < needs.size(); ++column) {
            const bool needsMore = needs[column] > shares[column] * worth;
            left -= needsMore ? needs[column] : 0.0;
            sharing += needsMore ? 0.0 : shares[column];
        }
        worth = sharing > 0.0 ? std::min(worth, left / sharing) : worth;
    }
    return worth;
}

}  // namespace

std::vector<double> ColumnWidths(const std::vector<double>& needs,
                                 const std::vector<double>& shares, double width) {
    std::vector<double> widths = needs;
    const double needed = std::accumulate(needs.begin(), needs.end(), 0.0);
    if (needed >= width) {
        std::ranges::for_each(widths, [&](double& each) { each *= width / needed; });
        return widths;
    }
    const double worth = WorthOfShare(needs, shares, width);
    for (std::size_t column = 0; column < widths.size(); ++column) {
        widths[column] = std::max(needs[column], shares[column] * worth);
    }
    return widths;
}

}  // namespace horavex
