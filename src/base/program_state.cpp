#include "base/program_state.h"

#include <vector>

namespace horavex {

namespace {

// A function-local list, so that modules may register in any order of initialisation.
std::vector<void (*)()>& Resets() {
    static std::vector<void (*)()> resets;
    return resets;
}

}  // namespace

void ResetProgramState() {
    for (auto* reset : Resets()) {
        reset();
    }
}

ProgramStateReset::ProgramStateReset(void (*reset)()) {
    Resets().push_back(reset);
}

}  // namespace horavex
