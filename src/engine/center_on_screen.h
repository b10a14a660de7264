#pragma once

#include "forms/form.h"

namespace horavex {

/// Puts the form into the middle of the screen; its size stays.
void CenterOnScreen(Form& form);

}  // namespace horavex
