#pragma once

#include "platform/instance_guard.h"

namespace horavex {

/// Answers as it is told.
class FixedInstanceGuard : public InstanceGuard {
public:
    bool AnotherIsRunning() override { return anotherIsRunning; }

    bool anotherIsRunning = false;
};

}  // namespace horavex
