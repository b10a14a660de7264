#pragma once

namespace horavex {

/// Runs the program with its face in the terminal until something ends it. Returns only from a
/// start that failed, with the exit status. Throws NoTerminal where there is none to run in.
int RunTerminalProgram();

}  // namespace horavex
