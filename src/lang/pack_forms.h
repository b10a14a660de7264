#pragma once

#include <memory>
#include <vector>

#include "forms/form.h"

namespace horavex {

/// Every form that translates itself at its load, made anew and not loaded: as its definition has
/// it, whatever a running one shows. A new form that does so goes on this list.
std::vector<std::unique_ptr<Form>> PackForms();

}  // namespace horavex
