#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "linux/system_call.h"

namespace horavex {

/// A web server of this machine for this machine. It answers GET with what it was given, one
/// request after the other.
class LoopbackServer {
public:
    LoopbackServer();
    ~LoopbackServer();
    LoopbackServer(const LoopbackServer&) = delete;
    LoopbackServer& operator=(const LoopbackServer&) = delete;

    /// Answers the path with these bytes from now on. Other paths are not found.
    void Serve(const std::string& path, const std::string& body);

    /// Answers the path with these bytes as they stand, head included, and closes.
    void ServeRaw(const std::string& path, const std::string& response);

    /// Answers the path with a redirection.
    void Redirect(const std::string& path, const std::string& target);

    /// Takes a request of the path and says nothing until the client goes.
    void Keep(const std::string& path);

    /// Answers the path with these bytes, a block of the given size every millisecond.
    void Drip(const std::string& path, const std::string& response, std::size_t block);

    /// Answers the path with a body of letters that ends when the client goes.
    void ServeForever(const std::string& path);

    /// Its root page: "http://127.0.0.1:40123".
    std::string Address() const;

    /// The paths that were asked for, in order.
    std::vector<std::string> Requests() const;

private:
    /// Speaks to a client on its connection.
    using Speaker = std::function<void(int connection)>;

    void Run();
    void Answer(int connection);
    void SetSpeaker(const std::string& path, Speaker speaker);
    Speaker SpeakerFor(const std::string& path);

    Descriptor listener_;
    int port_ = 0;
    mutable std::mutex mutex_;  // over the next two
    std::map<std::string, Speaker> speakers_;
    std::vector<std::string> requests_;
    std::thread thread_;
};

}  // namespace horavex
