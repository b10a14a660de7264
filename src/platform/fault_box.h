#pragma once

#include <exception>

#include "base/fault.h"

namespace horavex {

/// Tells the user of a fault that ended a command, in one plain message box; the program then
/// goes on. While that box is open no other one comes, so that a fault in every tick does not
/// bury the screen.
void ShowFault(const std::exception& fault);

/// Runs what a user or a timer has set in motion. A fault ends here and is told to the user: it
/// must not pass through frames of the toolkit, which would lose what they hold.
template <class Action>
void RunGuarded(Action action) {
    try {
        WithMemoryFaults(action);
    } catch (const std::exception& fault) {
        ShowFault(fault);
    }
}

}  // namespace horavex
