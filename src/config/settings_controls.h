#pragma once

#include <cstdint>

namespace horavex {

/// Fills the settings window from the accepted state: the working copy of settings and place,
/// the texts of the place, the ranges of the angles, and every control.
void Settings_Form_Load();

/// Takes the band of a latitude (stored hundredths of a degree) and sets the ranges of the angle
/// controls as AngleRange has them, the labels of their limits and the list of conventions, here
/// and in the wizard. Without a band file the former band stays.
void SetDepressionLimits(std::int16_t latitude);

/// Reads the stored working settings back, with the place that they name, and shows them, but
/// keeps both angles.
void LoadSettingsIntoControls();

/// Shows the present working settings in every control.
void sub0651();

/// The same with the working place: its city, its coordinates and the limits of its latitude.
void ShowWorkingValues();

/// Binds the handlers of the settings window's controls.
void BindSettingsControls();

}  // namespace horavex
