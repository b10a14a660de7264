#pragma once

#include <string>

#include "config/authorities.h"

namespace horavex {

/// The method that a typed name means. Refuses the usage for a name of none and for one of
/// several, which it lists.
const Authority& AuthorityOfText(const std::string& text);

}  // namespace horavex
