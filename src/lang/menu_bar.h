#pragma once

#include <string>

namespace horavex {

/// Hands the titles of the face's four menus over to it, as the pack of that path has them. A
/// title that the pack lacks is empty.
void SetMenuBar(const std::string& packPath);

}  // namespace horavex
