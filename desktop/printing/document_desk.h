#pragma once

namespace horavex {

/// Installs all document tools: PDF, pictures, print preview and print, over the window that the
/// user works with.
void InstallDesktopDocuments();

}  // namespace horavex
