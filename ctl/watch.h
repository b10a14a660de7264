#pragma once

#include <functional>
#include <string>

namespace horavex {

/// Draws the text that frame gives at each whole second of the clock, in place, until the
/// process is interrupted; the terminal is then as it was. Standard output is a terminal.
void WatchInTerminal(const std::function<std::string()>& frame);

}  // namespace horavex
