#pragma once

#include <exception>

namespace horavex {

/// Tells the user of a fault that ended a command, in one plain message box; the program then
/// goes on. While that box is open no other one comes, so that a fault in every tick does not
/// bury the screen.
void ShowFault(const std::exception& fault);

}  // namespace horavex
