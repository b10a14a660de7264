#pragma once

#include "base/fault.h"

namespace horavex {

/// Runs one step of a routine whose failed steps are passed over so that the next one runs.
template <class Step>
void RunStep(Step step) {
    try {
        step();
    } catch (const Fault&) {
        // Passed over in silence.
    }
}

}  // namespace horavex
