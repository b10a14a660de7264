#pragma once

#include <cstdint>

namespace horavex {

/// -1 at a start that found no Isha angle stored. Written by the start; read at its end and by
/// the wizard.
extern std::int16_t firstRun;

}  // namespace horavex
