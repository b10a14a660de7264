#pragma once

#include <string>

namespace horavex {

/// Samples without a header can neither be tried nor saved: true for these, and the user is told
/// what to do.
bool RefusesBareSamples(const std::string& path);

}  // namespace horavex
