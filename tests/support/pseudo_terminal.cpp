#include "support/pseudo_terminal.h"

#include <stdexcept>
#include <utility>

namespace horavex {

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

bool PseudoTerminal::ReadMore() {
    constexpr int kPatience = 90000;  // milliseconds
    const TerminalProcess::Came came = process_.ReadInto(unread_, kPatience);
    if (came == TerminalProcess::Came::kNothing) {
        throw std::runtime_error("the program prints nothing new after: " + unread_);
    }
    return came == TerminalProcess::Came::kText;
}

}  // namespace horavex
