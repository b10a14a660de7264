#include "terminal/forms/shared_columns.h"

#include <algorithm>
#include <numeric>

namespace horavex {

namespace {

int Sum(const std::vector<int>& numbers) {
    return std::accumulate(numbers.begin(), numbers.end(), 0);
}

/// Each gets its least and the same part of what it wants beyond.
std::vector<int> Narrowed(const std::vector<int>& least, const std::vector<int>& wanted,
                          int width) {
    const double free = std::max(0, width - Sum(least));
    const double part = free / std::max(1, Sum(wanted) - Sum(least));
    std::vector<int> shares;
    for (std::size_t i = 0; i < least.size(); ++i) {
        shares.push_back(least[i] + static_cast<int>((wanted[i] - least[i]) * part));
    }
    return shares;
}

}  // namespace

std::vector<int> SharedColumns(const std::vector<int>& least, const std::vector<int>& wanted,
                               const std::vector<bool>& takesRest, int width) {
    int rest = width - Sum(wanted);
    if (rest < 0) {
        return Narrowed(least, wanted, width);
    }
    std::vector<int> shares = wanted;
    auto takers = static_cast<int>(std::count(takesRest.begin(), takesRest.end(), true));
    for (std::size_t i = 0; i < shares.size(); ++i) {
        if (takesRest[i]) {
            const int share = rest / takers--;
            shares[i] += share;
            rest -= share;
        }
    }
    return shares;
}

}  // namespace horavex
