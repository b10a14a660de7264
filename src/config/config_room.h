#pragma once

namespace horavex {

/// Binds the settings window, the wizard, About and the help, and the ways to them.
void BindConfigRoom();

}  // namespace horavex
