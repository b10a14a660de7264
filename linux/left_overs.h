#pragma once

#include <string>
#include <vector>

namespace horavex {

/// Deletes the temporary names that writes of crashed processes have left in the folders and in
/// their own folders. Those of a process that runs stay; so does what cannot be deleted.
void ClearLeftOvers(const std::vector<std::string>& folders);

}  // namespace horavex
