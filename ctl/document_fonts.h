#pragma once

namespace horavex {

/// Installs what sets documents in type, where this build has it: with the desktop, the toolkit's
/// fonts without any display.
void InstallDocumentFonts();

}  // namespace horavex
