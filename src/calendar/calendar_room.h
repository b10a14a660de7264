#pragma once

namespace horavex {

/// Binds the menu's way to the date conversion.
void BindCalendarRoom();

}  // namespace horavex
