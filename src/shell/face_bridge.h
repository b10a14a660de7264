#pragma once

#include <string>

namespace horavex {

// The chief header of the shell: what the face is told, and what it asks for. The names of the
// variables and commands are a wire format; what renders them is nobody's business here.

/// Hands the face its eleven values, in order: the Hijri date, the next prayer, the remaining
/// time, all times, the compass, the Gregorian date; then the day as a value. Once a
/// tick; nothing is compared with what was sent before.
void SetFlashVariables();

/// Does what a command of the face asks for; its case counts, and an unknown one is ignored.
void OnFaceCommand(const std::string& command);

}  // namespace horavex
