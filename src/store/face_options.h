#pragma once

#include "store/options.h"

namespace horavex::option {

/// 1: the face is one line with the next prayer and the countdown.
inline constexpr WholeOption kFaceSmall = {"Face Small", 0, 1, 0};

/// 1: it fills the screen, and keeps it on.
inline constexpr WholeOption kFaceFullScreen = {"Face Full Screen", 0, 1, 0};

/// 1: it stays above other windows.
inline constexpr WholeOption kFaceAbove = {"Face Above", 0, 1, 0};

/// 1: users read numbers in the digits of the pack's language.
inline constexpr WholeOption kOwnDigits = {"Own Digits", 0, 1, 0};

}  // namespace horavex::option
