#include "support/loopback_server.h"

#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <sstream>
#include <system_error>
#include <utility>

namespace horavex {

namespace {

sockaddr_in Loopback() {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

void Check(int result) {
    if (result < 0) {
        throw std::system_error(errno, std::generic_category(), "loopback server");
    }
}

std::string ReadHead(int connection) {
    std::string head;
    std::array<char, 1024> block{};
    while (head.find("\r\n\r\n") == std::string::npos) {
        const ssize_t count = ::recv(connection, block.data(), block.size(), 0);
        if (count <= 0) {
            break;
        }
        head.append(block.data(), static_cast<std::size_t>(count));
    }
    return head;
}

std::string ResponseOf(const std::string& status, const std::string& body) {
    return "HTTP/1.1 " + status +
           "\r\nConnection: close\r\nContent-Length: " + std::to_string(body.size()) + "\r\n\r\n" +
           body;
}

/// False when the client has gone.
bool Send(int connection, const std::string& text) {
    return ::send(connection, text.data(), text.size(), MSG_NOSIGNAL) >= 0;
}

/// Waits for the client to go, at most the given time; -1 waits as long as it takes.
bool HasGone(int connection, int milliseconds) {
    pollfd waited{connection, POLLRDHUP, 0};
    return ::poll(&waited, 1, milliseconds) > 0;
}

}  // namespace

LoopbackServer::LoopbackServer() : listener_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    sockaddr_in address = Loopback();
    socklen_t size = sizeof address;
    auto* generic = reinterpret_cast<sockaddr*>(&address);
    Check(::bind(listener_.Number(), generic, size));
    Check(::listen(listener_.Number(), 8));
    Check(::getsockname(listener_.Number(), generic, &size));
    port_ = ntohs(address.sin_port);
    thread_ = std::thread([this] { Run(); });
}

// Shutting the listener down makes its accept return.
LoopbackServer::~LoopbackServer() {
    ::shutdown(listener_.Number(), SHUT_RDWR);
    thread_.join();
}

void LoopbackServer::Serve(const std::string& path, const std::string& body) {
    ServeRaw(path, ResponseOf("200 OK", body));
}

void LoopbackServer::ServeRaw(const std::string& path, const std::string& response) {
    SetSpeaker(path, [response](int connection) { Send(connection, response); });
}

void LoopbackServer::Redirect(const std::string& path, const std::string& target) {
    ServeRaw(path, "HTTP/1.1 302 Found\r\nConnection: close\r\nLocation: " + target +
                       "\r\nContent-Length: 5\r\n\r\nmoved");
}

void LoopbackServer::Keep(const std::string& path) {
    SetSpeaker(path, [](int connection) { HasGone(connection, -1); });
}

void LoopbackServer::Drip(const std::string& path, const std::string& response, std::size_t block) {
    SetSpeaker(path, [response, block](int connection) {
        for (std::size_t at = 0; at < response.size() && !HasGone(connection, 1); at += block) {
            Send(connection, response.substr(at, block));
        }
    });
}

void LoopbackServer::ServeForever(const std::string& path) {
    SetSpeaker(path, [](int connection) {
        bool isThere = Send(connection, "HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n");
        while (isThere) {
            isThere = Send(connection, std::string(1000, 'x'));
        }
    });
}

std::string LoopbackServer::Address() const {
    return "http://127.0.0.1:" + std::to_string(port_);
}

std::vector<std::string> LoopbackServer::Requests() const {
    const std::lock_guard lock(mutex_);
    return requests_;
}

void LoopbackServer::Run() {
    for (;;) {
        const Descriptor connection(::accept4(listener_.Number(), nullptr, nullptr, SOCK_CLOEXEC));
        if (!connection.IsOpen()) {
            return;
        }
        Answer(connection.Number());
    }
}

void LoopbackServer::Answer(int connection) {
    std::istringstream head(ReadHead(connection));
    std::string method;
    std::string path;
    head >> method >> path;
    SpeakerFor(path)(connection);
}

void LoopbackServer::SetSpeaker(const std::string& path, Speaker speaker) {
    const std::lock_guard lock(mutex_);
    speakers_[path] = std::move(speaker);
}

LoopbackServer::Speaker LoopbackServer::SpeakerFor(const std::string& path) {
    const std::lock_guard lock(mutex_);
    requests_.push_back(path);
    const auto speaker = speakers_.find(path);
    if (speaker != speakers_.end()) {
        return speaker->second;
    }
    return [](int connection) { Send(connection, ResponseOf("404 Not Found", "")); };
}

}  // namespace horavex
