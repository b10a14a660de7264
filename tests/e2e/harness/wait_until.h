#pragma once

#include <chrono>
#include <stdexcept>
#include <string>
#include <thread>

namespace horavex {

inline constexpr std::chrono::seconds kPatience{90};
inline constexpr std::chrono::milliseconds kLookEvery{20};

/// Looks until the test answers something that counts as true, and returns the answer. Throws
/// after a minute and a half, which no machine is too busy for.
template <class Test>
auto WaitUntil(const std::string& what, Test test) {
    const auto end = std::chrono::steady_clock::now() + kPatience;
    while (std::chrono::steady_clock::now() < end) {
        if (auto answer = test()) {
            return answer;
        }
        std::this_thread::sleep_for(kLookEvery);
    }
    throw std::runtime_error("waited in vain: " + what);
}

}  // namespace horavex
