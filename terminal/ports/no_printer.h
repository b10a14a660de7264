#pragma once

namespace horavex {

/// Says what to do where a window is to be printed: no printer is spoken to from a terminal.
void SayNoPrinter();

}  // namespace horavex
