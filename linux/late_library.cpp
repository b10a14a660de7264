#include "linux/late_library.h"

#include <dlfcn.h>

#include <stdexcept>

namespace horavex {

namespace {

void* Checked(void* found) {
    if (found == nullptr) {
        throw std::runtime_error(::dlerror());
    }
    return found;
}

}  // namespace

void* LateLibrary::Find(const char* function) const {
    return Checked(::dlsym(Handle(), function));
}

// Two threads at once are given the same one.
void* LateLibrary::Handle() const {
    if (handle_ == nullptr) {
        handle_ = Checked(::dlopen(name_, RTLD_NOW | RTLD_LOCAL));
    }
    return handle_;
}

}  // namespace horavex
