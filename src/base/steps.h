#pragma once

#include "base/memory_fault.h"

namespace horavex {

/// Runs one step of a routine whose failed steps are passed over so that the next one runs.
template <class Step>
void RunStep(Step step) {
    try {
        WithMemoryFaults(step);
    } catch (const Fault&) {
        // Passed over in silence.
    }
}

}  // namespace horavex
