#pragma once

namespace horavex {

/// Binds the month window's handlers.
void BindMonthWindow();

/// Opens the month window on the present month, modal, in front of the day browser. It shows the
/// table as it stands at its opening.
void ShowMonthWindow();

}  // namespace horavex
