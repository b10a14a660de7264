#pragma once

#include <string_view>
#include <vector>

#include "base/bytes.h"

namespace horavex {

/// A reader of the program that is given bytes which nobody has looked at. What it refuses it
/// refuses by a Fault (RunStep passes it over), and what it takes must hold together: what leaves
/// it otherwise, a promise that is broken and memory that it should not touch end the process.
struct FuzzTarget {
    std::string_view name;  // of its folder in corpus/
    void (*run)(ByteView input);
};

const std::vector<FuzzTarget>& FuzzTargets();

/// Throws std::runtime_error for a name that no target has.
const FuzzTarget& FindFuzzTarget(std::string_view name);

/// Ends the process, naming the promise, where it is not kept.
void Require(bool isKept, std::string_view promise);

}  // namespace horavex
