#pragma once

namespace horavex {

/// Binds the handlers of fMessage, the window of progress and of the alarm.
void BindMessageWindow();

}  // namespace horavex
