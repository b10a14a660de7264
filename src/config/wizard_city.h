#pragma once

namespace horavex {

// The ways to a city on the wizard's first page: the picker, the largest city of the computer's own
// zone, and the desktop's location service.

/// At the wizard's load: shows the buttons of those that there are.
void OfferCities();

/// Whether the computer goes by the zone of the working city.
bool KeepsComputersZone();

/// A question for the position that is open comes to nothing.
void StopLocating();

/// Binds the buttons.
void BindWizardCity();

}  // namespace horavex
