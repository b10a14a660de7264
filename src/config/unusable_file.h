#pragma once

#include "base/fault.h"

namespace horavex {

// A data file that an option needs may be missing or damaged. The program then goes on as without
// the option, and says so.

/// Says that a data file does not count and what is wrong with it, each fault once in a run.
void TellUnusableFile(const Fault& fault);

/// What read returns; a fault of it is told, and an empty value is the answer.
template <class Read>
auto ReadOrTell(Read read) -> decltype(read()) {
    try {
        return WithMemoryFaults(read);
    } catch (const Fault& fault) {
        TellUnusableFile(fault);
        return {};
    }
}

}  // namespace horavex
