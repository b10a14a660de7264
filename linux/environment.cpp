#include "linux/environment.h"

#include <cstdlib>

namespace horavex {

std::string Variable(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

std::string FolderVariable(const char* name) {
    const std::string value = Variable(name);
    return value.starts_with('/') ? value : "";
}

}  // namespace horavex
