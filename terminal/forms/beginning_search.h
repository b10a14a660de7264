#pragma once

#include <string>
#include <vector>

namespace horavex {

/// Looks for one of some texts by its first letters, which follow each other within a second. One
/// letter over and over goes through the texts that begin with it.
class BeginningSearch {
public:
    /// The text that a letter leads to, by its number; -1 where none begins so. at: where the user
    /// stands, -1 for nowhere. seconds: of a clock that goes forward.
    int After(char32_t letter, const std::vector<std::string>& texts, int at, double seconds);

private:
    std::u32string typed_;
    double typedAt_ = 0.0;
};

}  // namespace horavex
