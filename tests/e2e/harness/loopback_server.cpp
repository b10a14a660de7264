#include "e2e/harness/loopback_server.h"

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <sstream>
#include <system_error>

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
    const std::lock_guard lock(mutex_);
    pages_[path] = body;
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
    const std::string response = ResponseTo(path);
    ::send(connection, response.data(), response.size(), MSG_NOSIGNAL);
}

std::string LoopbackServer::ResponseTo(const std::string& path) {
    const std::lock_guard lock(mutex_);
    requests_.push_back(path);
    const auto page = pages_.find(path);
    const bool isThere = page != pages_.end();
    const std::string body = isThere ? page->second : "";
    return std::string("HTTP/1.1 ") + (isThere ? "200 OK" : "404 Not Found") +
           "\r\nConnection: close\r\nContent-Length: " + std::to_string(body.size()) + "\r\n\r\n" +
           body;
}

}  // namespace horavex
