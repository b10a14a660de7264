#pragma once

#include <string>

namespace horavex {

/// A variable of the environment; empty when it is not set.
std::string Variable(const char* name);

/// A folder that a variable names; empty when the variable is not set or names no absolute path,
/// which counts as not set.
std::string FolderVariable(const char* name);

}  // namespace horavex
