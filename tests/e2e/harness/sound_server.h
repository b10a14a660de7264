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

    /// Adds a device that nobody hears either, with a name for people.
    void AddDevice(const std::string& id, const std::string& name) const;

    /// Takes a device away.
    void RemoveDevice(const std::string& id) const;

    pid_t Id() const { return server_.Id(); }

private:
    std::string SocketPath() const { return folder_ / "socket"; }
};

}  // namespace horavex
