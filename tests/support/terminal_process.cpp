#include "support/terminal_process.h"

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

TerminalProcess::TerminalProcess(const std::string& name, const std::vector<std::string>& arguments,
                                 const Environment& environment, const winsize& size) {
    std::vector<std::string> words = {name.starts_with('/') ? name : BuildPath("bin/" + name)};
    words.insert(words.end(), arguments.begin(), arguments.end());
    auto variables = AssignmentsOf(environment);
    const auto wordPointers = PointersOf(words);
    const auto variablePointers = PointersOf(variables);
    int terminal = -1;
    process_ = ::forkpty(&terminal, nullptr, nullptr, &size);
    if (process_ == 0) {
        ::execve(wordPointers[0], wordPointers.data(), variablePointers.data());
        ::_exit(127);
    }
    if (process_ < 0) {
        throw std::runtime_error("no pseudo terminal");
    }
    terminal_ = Descriptor(terminal);
}

TerminalProcess::~TerminalProcess() {
    if (process_ > 0) {
        Signal(SIGKILL);
        Wait();
    }
}

// The last process to leave a terminal makes its reads fail.
TerminalProcess::Came TerminalProcess::ReadInto(std::string& text, int milliseconds) {
    pollfd wanted{terminal_.Number(), POLLIN, 0};
    if (::poll(&wanted, 1, milliseconds) <= 0) {
        return Came::kNothing;
    }
    std::array<char, 4096> block{};
    const ssize_t count = ::read(terminal_.Number(), block.data(), block.size());
    if (count <= 0) {
        return Came::kEnd;
    }
    text.append(block.data(), static_cast<std::size_t>(count));
    return Came::kText;
}

void TerminalProcess::Type(const std::string& keys) const {
    if (::write(terminal_.Number(), keys.data(), keys.size()) !=
        static_cast<ssize_t>(keys.size())) {
        throw std::runtime_error("the terminal takes no keys");
    }
}

void TerminalProcess::Resize(const winsize& size) const {
    ::ioctl(terminal_.Number(), TIOCSWINSZ, &size);
}

void TerminalProcess::Signal(int signal) const {
    ::kill(process_, signal);
}

void TerminalProcess::WaitForStop() const {
    int status = 0;
    ::waitpid(process_, &status, WUNTRACED);
    if (!WIFSTOPPED(status)) {
        throw std::runtime_error("the program has ended instead");
    }
}

int TerminalProcess::Wait() {
    int status = 0;
    ::waitpid(std::exchange(process_, -1), &status, 0);
    return ExitStatus(status);
}

}  // namespace horavex
