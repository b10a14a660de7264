#pragma once

#include "forms/form.h"

namespace horavex {

/// Whether most captions on view of a form run from right to left.
bool CaptionsRunFromRight(const Form& form);

}  // namespace horavex
