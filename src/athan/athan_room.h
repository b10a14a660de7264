#pragma once

namespace horavex {

/// Binds the player, the windows of the athan and the ways to them.
void BindAthanRoom();

}  // namespace horavex
