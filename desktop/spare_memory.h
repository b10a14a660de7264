#pragma once

namespace horavex {

/// Gives freed memory back to the system once the program has come to rest. Asked for where much
/// was used for a moment: at the end of the start, where the wizard's lists of cities take several
/// times what the program goes on with, and when a window has gone.
void ReturnMemorySoon();

}  // namespace horavex
