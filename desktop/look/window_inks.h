#pragma once

#include <QPalette>

#include "desktop/documents/drawing_steps.h"

namespace horavex::look {

/// The colours of drawings in a window: black and white are its text and its fields, and on dark
/// ground what would be lost or glare there has another colour.
Inks WindowInks(const QPalette& palette);

}  // namespace horavex::look
