#pragma once

#include <cstddef>
#include <cstdint>
#include <random>

namespace horavex {

/// Numbers by chance, the same ones for a seed wherever it runs.
class Chance {
public:
    explicit Chance(std::uint32_t seed) : numbers_(seed) {}

    /// From 0 up to, not including, end, which is 1 at least.
    int Below(int end) { return static_cast<int>(numbers_() % static_cast<std::uint32_t>(end)); }

    /// From least to most.
    int Between(int least, int most) { return least + Below(most - least + 1); }

    bool OneIn(int times) { return Below(times) == 0; }

    /// One of some, which are not empty.
    template <class Some>
    const auto& Of(const Some& some) {
        return some[static_cast<std::size_t>(Below(static_cast<int>(std::size(some))))];
    }

private:
    std::mt19937 numbers_;
};

}  // namespace horavex
