#pragma once

#include <string>

#include "ctl/command.h"

namespace horavex {

/// Works out the table and the qibla of a year for the working settings, and sets the session's
/// status when the calculation gives up.
void Calculate(Session& session, int year);

/// null, or the message's letter and the row of the calculation that gave up.
Json FailureJson();

}  // namespace horavex
