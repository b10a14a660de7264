#pragma once

namespace horavex {

/// Binds the start, the shell's own menu entries, the clock, the icon and the face.
void BindShellRoom();

}  // namespace horavex
