#pragma once

#include <string>

#include "linux/system_call.h"
#include "platform/instance_guard.h"

namespace horavex {

/// Where the lock of this user's session lies: $XDG_RUNTIME_DIR/horavex.lock, or without that
/// variable a name with the user's number in the folder for temporary files.
std::string InstanceLockPath();

/// One instance by an advisory lock on a file. The system lets go of the lock when the process
/// ends, however it ends; the file itself stays.
class InstanceLock : public InstanceGuard {
public:
    explicit InstanceLock(std::string path) : path_(std::move(path)) {}

    bool AnotherIsRunning() override;

private:
    std::string path_;
    Descriptor claim_;
};

}  // namespace horavex
