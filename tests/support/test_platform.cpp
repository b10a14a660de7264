#include "support/test_platform.h"

#include "base/program_state.h"

namespace horavex {

TestPlatform::TestPlatform() {
    clock.Set(DateSerial(2026, 11, 21) + TimeSerial(12, 0, 0));
    InstallPlatform(&platform_);
    ResetProgramState();
}

TestPlatform::~TestPlatform() {
    InstallPlatform(nullptr);
}

}  // namespace horavex
