#pragma once

namespace horavex {

/// Counts calls and picks one of them out, for adapters that fail on demand.
class NthCall {
public:
    /// The n-th call from now on, 1-based; 0 picks none.
    void Pick(int n) {
        calls_ = 0;
        picked_ = n;
    }

    /// Counts one call; true for the picked one.
    bool Count() { return ++calls_ == picked_; }

    /// Calls counted since the last Pick.
    int Calls() const { return calls_; }

private:
    int calls_ = 0;
    int picked_ = 0;
};

}  // namespace horavex
