#pragma once

namespace horavex {

/// Binds the menu's way to the moon.
void BindMoonRoom();

}  // namespace horavex
