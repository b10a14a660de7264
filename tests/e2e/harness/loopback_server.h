#pragma once

#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "linux/descriptor.h"

namespace horavex {

/// A web server of this machine for this machine. It answers GET with what it was given.
class LoopbackServer {
public:
    LoopbackServer();
    ~LoopbackServer();
    LoopbackServer(const LoopbackServer&) = delete;
    LoopbackServer& operator=(const LoopbackServer&) = delete;

    /// Answers the path with these bytes from now on. Other paths are not found.
    void Serve(const std::string& path, const std::string& body);

    /// Its root page: "http://127.0.0.1:40123".
    std::string Address() const;

    /// The paths that were asked for, in order.
    std::vector<std::string> Requests() const;

private:
    void Run();
    void Answer(int connection);
    std::string ResponseTo(const std::string& path);

    Descriptor listener_;
    int port_ = 0;
    mutable std::mutex mutex_;  // over the next two
    std::map<std::string, std::string> pages_;
    std::vector<std::string> requests_;
    std::thread thread_;
};

}  // namespace horavex
