#pragma once

namespace horavex {

/// Installs what sets documents in type: the toolkit's fonts without any display, or the program
/// that has them, where it is installed. The arguments are the command's own, as main gets them.
void InstallDocumentFonts(char** arguments);

/// Goes on as the program that has the fonts, where this one lacks them and that one is installed,
/// for a call that will set documents in type in more than one process.
void TakeDocumentFonts();

}  // namespace horavex
