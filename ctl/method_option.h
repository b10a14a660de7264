#pragma once

#include <optional>
#include <string>

#include "config/authorities.h"

namespace horavex {

/// The method that --method names, less what is given by hand; none without it. Written by
/// ApplyPlace.
extern std::optional<Authority> ChosenAuthority;

/// The method that a typed name means. Refuses the usage for a name of none and for one of
/// several, which it lists.
const Authority& AuthorityOfText(const std::string& text);

}  // namespace horavex
