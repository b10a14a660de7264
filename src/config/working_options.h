#pragma once

#include <optional>

#include "config/year_options.h"

namespace horavex {

// The options that the working settings go by. What a window has chosen waits here until a commit
// stores it with the settings, or the window gives it up.

/// Those chosen, or else the stored ones; the zone apart.
YearOptions WorkingRules();

/// The same with the zone of the working city while the box of the city's zone is ticked.
YearOptions WorkingOptions();

/// The rule of high latitudes among them.
HighLatitudeRule WorkingRule();

void ChooseOptions(const YearOptions& options);

/// True while chosen options wait.
bool OptionsAreChosen();

/// Those that wait, and their return.
std::optional<YearOptions> WaitingOptions();
void BringOptionsBack(const std::optional<YearOptions>& options);

/// Gives up what was chosen: the stored options count again.
void DropChosenOptions();

/// What was chosen is stored and accepted with the settings.
void ChosenOptionsAreAccepted();

/// True once this process has accepted settings of its user's.
bool AnythingWasAccepted();

}  // namespace horavex
