#pragma once

namespace horavex {

/// Binds the update check and the ways to the vendor's pages.
void BindUpdateRoom();

}  // namespace horavex
