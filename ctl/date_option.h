#pragma once

#include <CLI/CLI.hpp>
#include <string>

#include "base/date.h"
#include "calendar/date_entry.h"

namespace horavex {

/// --date Y-M-D of a command.
void AddDateOption(CLI::App& command, std::string& date);

/// The numbers of a text "2026-11-21", zeros in front optional. Refuses the usage for any other
/// text; whether the day exists is left to the caller.
DateNumbers ParseDateOption(const std::string& text);

/// Refuses the usage for a day that its calendar does not have.
[[noreturn]] void RefuseDate(const std::string& text);

/// The numbers of a Gregorian day. Refuses the usage for one that does not exist.
DateNumbers ParseCivilDateOption(const std::string& text);

/// The moment of --at: "2026-11-21T12:34:56", or the day alone for its midnight. Refuses the usage
/// for any other text.
Date ParseMomentOption(const std::string& text);

}  // namespace horavex
