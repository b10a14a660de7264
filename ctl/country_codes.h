#pragma once

#include <string_view>

namespace horavex {

/// The name, as the location files have it, of the country with an ISO 3166-1 code of two letters
/// or a usual abbreviation ("USA", "UK"), in any case; empty for anything else.
std::string_view CountryOfCode(std::string_view code);

}  // namespace horavex
