#pragma once

#include <optional>
#include <string>

#include "forms/text_box.h"

namespace horavex {

/// The guard of a zone box after each released key: what is no number, or rounds to 13 hours or
/// more, gives way to the former text. A lone sign goes at once, so that digits come first and
/// the sign afterwards.
void GuardZone(TextBox& box, const std::string& former);

/// The zone that a text holds: a number from -12 to the given hour, both included.
std::optional<double> ZoneIn(const std::string& text, double last);

}  // namespace horavex
