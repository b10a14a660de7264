#pragma once

#include "e2e/harness/service.h"

namespace horavex {

/// A sound server whose one device nobody hears. What it plays can be recorded.
class SoundServer {
    TemporaryFolder folder_;
    Service server_;

public:
    SoundServer();

    /// Gives the server to the programs that are started with these variables.
    void InstallIn(Environment& variables) const;

    /// Runs a tool on the server and returns what it prints. Throws where the tool fails.
    std::string Use(const std::vector<std::string>& words) const;

    pid_t Id() const { return server_.Id(); }

private:
    std::string SocketPath() const { return folder_ / "socket"; }
};

}  // namespace horavex
