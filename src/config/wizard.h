#pragma once

#include <cstdint>
#include <string>

namespace horavex {

/// -1 at a start that found no Isha angle stored. Written by the start; read at its end and by
/// the wizard.
extern std::int16_t firstRun;

/// Brings the wizard up in front of the face, without blocking.
void ShowWizard();

/// Shows the accepted city, and the texts of the place, the zone box and the days of daylight
/// saving as the settings window has them.
void ShowCityOnWizard();

/// Behind a pick: the face shows the day, and the wizard what the settings window now has.
void ShowPickOnWizard();

/// Takes a number from -12 to 11 as the zone of the working settings; anything else is refused
/// with a message. The settings window goes up to 12. accepted: a flag.
void CheckWizardTimeZone(const std::string& text, std::int16_t& accepted);

/// Binds the wizard's handlers.
void BindWizard();

}  // namespace horavex
