#pragma once

namespace horavex {

/// What the wizard says about the working place besides its name: the zone that counts there, the
/// method that is usual in its country, and what the working options add to the angles.
void ShowPlaceOnWizard();

}  // namespace horavex
