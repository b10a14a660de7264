#pragma once

#include "platform/network.h"

namespace horavex {

/// Tells what it was told.
class ScriptedNetwork : public Network {
public:
    ConnectionState Connection() override { return connection; }

    ConnectionState connection{false, 0};
};

}  // namespace horavex
