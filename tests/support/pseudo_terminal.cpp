#include "support/pseudo_terminal.h"

#include <poll.h>
#include <pty.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <stdexcept>
#include <utility>

#include "support/build_folder.h"

namespace horavex {

namespace {

constexpr int kPatience = 30000;  // milliseconds

}  // namespace

PseudoTerminal::PseudoTerminal(const std::string& name, const std::vector<std::string>& arguments,
                               const Environment& environment) {
    std::vector<std::string> words = {name.starts_with('/') ? name : BuildPath("bin/" + name)};
    words.insert(words.end(), arguments.begin(), arguments.end());
    auto variables = AssignmentsOf(environment);
    const auto wordPointers = PointersOf(words);
    const auto variablePointers = PointersOf(variables);
    int terminal = -1;
    process_ = ::forkpty(&terminal, nullptr, nullptr, nullptr);
    if (process_ == 0) {
        ::execve(wordPointers[0], wordPointers.data(), variablePointers.data());
        ::_exit(127);
    }
    if (process_ < 0) {
        throw std::runtime_error("no pseudo terminal");
    }
    terminal_ = Descriptor(terminal);
}

PseudoTerminal::~PseudoTerminal() {
    if (process_ > 0) {
        Signal(SIGKILL);
        Wait();
    }
}

std::string PseudoTerminal::ReadTo(const std::string& mark) {
    std::size_t at = unread_.find(mark);
    while (at == std::string::npos) {
        if (!ReadMore()) {
            throw std::runtime_error("the program ended: " + unread_);
        }
        at = unread_.find(mark);
    }
    std::string read = unread_.substr(0, at + mark.size());
    unread_.erase(0, read.size());
    return read;
}

std::string PseudoTerminal::ReadToEnd() {
    while (ReadMore()) {
    }
    return std::exchange(unread_, "");
}

void PseudoTerminal::Type(const std::string& keys) const {
    if (::write(terminal_.Number(), keys.data(), keys.size()) !=
        static_cast<ssize_t>(keys.size())) {
        throw std::runtime_error("the terminal takes no keys");
    }
}

void PseudoTerminal::Signal(int signal) const {
    ::kill(process_, signal);
}

int PseudoTerminal::Wait() {
    int status = 0;
    ::waitpid(std::exchange(process_, -1), &status, 0);
    return ExitStatus(status);
}

bool PseudoTerminal::ReadMore() {
    pollfd wanted{terminal_.Number(), POLLIN, 0};
    if (::poll(&wanted, 1, kPatience) <= 0) {
        throw std::runtime_error("the program prints nothing new after: " + unread_);
    }
    std::array<char, 4096> block{};
    // The last process to leave a terminal makes its reads fail.
    const ssize_t count = ::read(terminal_.Number(), block.data(), block.size());
    if (count <= 0) {
        return false;
    }
    unread_.append(block.data(), static_cast<std::size_t>(count));
    return true;
}

}  // namespace horavex
