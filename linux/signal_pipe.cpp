#include "linux/signal_pipe.h"

#include <fcntl.h>
#include <unistd.h>

#include <system_error>
#include <utility>

namespace horavex {

namespace {

// The one thing that a signal's handler may touch.
int writeEnd = -1;

void OnSignal(int number) {
    const int error = errno;
    const auto byte = static_cast<unsigned char>(number);
    [[maybe_unused]] const ::ssize_t written = ::write(writeEnd, &byte, 1);
    errno = error;
}

bool IsIgnored(int number) {
    struct sigaction present = {};
    ::sigaction(number, nullptr, &present);
    return present.sa_handler == SIG_IGN;
}

void Handle(const std::vector<int>& signals, void (*handler)(int)) {
    for (const int number : signals) {
        struct sigaction action = {};
        action.sa_handler = handler;
        action.sa_flags = SA_RESTART;
        if (!IsIgnored(number)) {
            ::sigaction(number, &action, nullptr);
        }
    }
}

}  // namespace

SignalPipe::SignalPipe(std::vector<int> signals) : signals_(std::move(signals)) {
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0) {
        throw std::system_error(errno, std::generic_category(), "pipe");
    }
    readEnd_ = Descriptor(ends[0]);
    writeEnd_ = Descriptor(ends[1]);
    writeEnd = ends[1];
    Handle(signals_, OnSignal);
}

SignalPipe::~SignalPipe() {
    Handle(signals_, SIG_DFL);
    writeEnd = -1;
}

std::optional<int> SignalPipe::Take() const {
    unsigned char number = 0;
    return ::read(Number(), &number, 1) == 1 ? std::optional<int>(number) : std::nullopt;
}

}  // namespace horavex
