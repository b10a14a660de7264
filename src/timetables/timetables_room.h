#pragma once

namespace horavex {

/// Binds the day browser, the month window, and the ways to them and to the export.
void BindTimetablesRoom();

}  // namespace horavex
