#pragma once

namespace horavex {

/// Installs what sets documents in type: the toolkit's fonts without any display, or the program
/// that has them, where it is installed. The arguments are the command's own, as main gets them.
void InstallDocumentFonts(char** arguments);

}  // namespace horavex
