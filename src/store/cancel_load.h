#pragma once

#include <cstdint>

namespace horavex {

/// 0, or -1 once the user has closed the progress window: a long list fill then stops. Cleared
/// when the settings window fills its controls and whenever a picker opens.
extern std::int16_t CancelLoad;

}  // namespace horavex
