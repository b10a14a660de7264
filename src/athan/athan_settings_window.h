#pragma once

namespace horavex {

/// Binds the handlers of frmAthan. A chosen sound is copied over the one that is played; what was
/// chosen is kept in the registry, for this window alone.
void BindAthanSettingsWindow();

}  // namespace horavex
