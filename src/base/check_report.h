#pragma once

#include <string>
#include <vector>

namespace horavex {

/// What a look through files has found.
struct CheckReport {
    int passed = 0;
    std::vector<std::string> problems;  // one line each: the file, the record, what is wrong

    /// Counts a pass, or notes the problem.
    void Expect(bool holds, const std::string& problem) {
        if (holds) {
            ++passed;
        } else {
            problems.push_back(problem);
        }
    }
};

}  // namespace horavex
