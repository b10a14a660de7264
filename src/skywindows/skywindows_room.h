#pragma once

namespace horavex {

/// Binds the windows of the sky and the ways to them.
void BindSkyWindowsRoom();

}  // namespace horavex
