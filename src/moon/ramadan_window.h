#pragma once

namespace horavex {

/// Opens the help on finding the first day of a lunar month, in front of the moon window, and
/// returns when it is closed. Its text is the language pack's; without one it stays empty.
void ShowRamadanHelp();

}  // namespace horavex
