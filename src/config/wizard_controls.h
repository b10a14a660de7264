#pragma once

namespace horavex {

/// Binds the controls of the wizard's pages. They write the same fields as those of the settings
/// window, but only as long as the wizard is open: an unloaded one is moved by others.
void BindWizardControls();

/// The labels of both angles.
void ShowWizardAngles();

/// Enables what depends on daylight saving.
void ShowWizardDaylight();

}  // namespace horavex
