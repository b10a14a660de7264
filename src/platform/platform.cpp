#include "platform/platform.h"

#include <cstdlib>

namespace horavex {

namespace {

const Platform* installed = nullptr;

}  // namespace

void InstallPlatform(const Platform* platform) {
    installed = platform;
}

const Platform& Ports() {
    if (installed == nullptr) {
        std::abort();
    }
    return *installed;
}

}  // namespace horavex
