#pragma once

namespace horavex {

/// Module-level state goes back to what a fresh process holds. Every test over
/// the ports in memory starts with it.
void ResetProgramState();

/// Registers one module's part of ResetProgramState. Declared once beside the state:
///
///     const ProgramStateReset reset([] { CalcFailed = 0; });
class ProgramStateReset {
public:
    explicit ProgramStateReset(void (*reset)());
};

}  // namespace horavex
