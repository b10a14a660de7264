#include "terminal/virtual_terminal.h"

#include <poll.h>
#include <pty.h>
#include <signal.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <stdexcept>
#include <utility>

#include "base/utf8.h"
#include "support/build_folder.h"

namespace horavex {

namespace {

constexpr std::chrono::seconds kPatience{30};

winsize SizeOf(int rows, int columns) {
    winsize size{};
    size.ws_row = static_cast<unsigned short>(rows);
    size.ws_col = static_cast<unsigned short>(columns);
    return size;
}

}  // namespace

VirtualTerminal::VirtualTerminal(const std::vector<std::string>& arguments,
                                 const Environment& environment, int rows, int columns)
    : emulator_(::vterm_new(rows, columns)) {
    ::vterm_set_utf8(emulator_.get(), 1);
    screen_ = ::vterm_obtain_screen(emulator_.get());
    static VTermScreenCallbacks callbacks{};
    callbacks.settermprop = OnProperty;
    ::vterm_screen_set_callbacks(screen_, &callbacks, this);
    ::vterm_screen_enable_altscreen(screen_, 1);
    ::vterm_screen_reset(screen_, 1);
    std::vector<std::string> words = {BuildPath("bin/horavex-terminal")};
    words.insert(words.end(), arguments.begin(), arguments.end());
    auto variables = AssignmentsOf(environment);
    const auto wordPointers = PointersOf(words);
    const auto variablePointers = PointersOf(variables);
    winsize size = SizeOf(rows, columns);
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

VirtualTerminal::~VirtualTerminal() {
    if (process_ > 0) {
        Signal(SIGKILL);
        int status = 0;
        ::waitpid(process_, &status, 0);
    }
}

int VirtualTerminal::OnProperty(VTermProp property, VTermValue* value, void* self) {
    if (property == VTERM_PROP_ALTSCREEN) {
        static_cast<VirtualTerminal*>(self)->isOnOtherScreen_ = value->boolean != 0;
    }
    return 1;
}

bool VirtualTerminal::ReadMore(int milliseconds) {
    pollfd wanted{terminal_.Number(), POLLIN, 0};
    if (::poll(&wanted, 1, milliseconds) <= 0) {
        return true;
    }
    std::array<char, 4096> block{};
    // The last process to leave a terminal makes its reads fail.
    const ssize_t count = ::read(terminal_.Number(), block.data(), block.size());
    if (count <= 0) {
        return false;
    }
    written_.append(block.data(), static_cast<std::size_t>(count));
    ::vterm_input_write(emulator_.get(), block.data(), static_cast<std::size_t>(count));
    return true;
}

std::string VirtualTerminal::WaitUntil(const std::function<bool(const std::string&)>& isSo,
                                       const std::string& what) {
    const auto end = std::chrono::steady_clock::now() + kPatience;
    bool runs = true;
    while (!isSo(Text())) {
        if (!runs || std::chrono::steady_clock::now() > end) {
            throw std::runtime_error("waited in vain: " + what + "\n" + Text());
        }
        runs = ReadMore();
    }
    return Text();
}

std::string VirtualTerminal::WaitFor(const std::string& text) {
    return WaitUntil([&](const std::string& screen) { return screen.find(text) != screen.npos; },
                     text);
}

std::string VirtualTerminal::WaitForNo(const std::string& text) {
    return WaitUntil([&](const std::string& screen) { return screen.find(text) == screen.npos; },
                     "no " + text);
}

void VirtualTerminal::WaitForSilence() {
    std::size_t before = 0;
    do {
        before = written_.size();
        ReadMore();
    } while (written_.size() > before);
}

void VirtualTerminal::Type(const std::string& keys) const {
    if (::write(terminal_.Number(), keys.data(), keys.size()) !=
        static_cast<ssize_t>(keys.size())) {
        throw std::runtime_error("the terminal takes no keys");
    }
}

void VirtualTerminal::Resize(int rows, int columns) {
    ::vterm_set_size(emulator_.get(), rows, columns);
    const winsize size = SizeOf(rows, columns);
    ::ioctl(terminal_.Number(), TIOCSWINSZ, &size);
}

void VirtualTerminal::Signal(int signal) const {
    ::kill(process_, signal);
}

void VirtualTerminal::WaitForStop() const {
    int status = 0;
    ::waitpid(process_, &status, WUNTRACED);
    if (!WIFSTOPPED(status)) {
        throw std::runtime_error("the program has ended instead");
    }
}

int VirtualTerminal::Wait() {
    while (ReadMore()) {
    }
    int status = 0;
    ::waitpid(std::exchange(process_, -1), &status, 0);
    return ExitStatus(status);
}

std::string VirtualTerminal::Text() const {
    int rows = 0;
    int columns = 0;
    ::vterm_get_size(emulator_.get(), &rows, &columns);
    std::string text;
    for (int row = 0; row < rows; ++row) {
        std::string line;
        for (int column = 0; column < columns; ++column) {
            VTermScreenCell cell{};
            ::vterm_screen_get_cell(screen_, {row, column}, &cell);
            if (cell.chars[0] == static_cast<std::uint32_t>(-1)) {
                continue;  // the second half of a wide character
            }
            for (int i = 0; i < VTERM_MAX_CHARS_PER_CELL && cell.chars[i] != 0; ++i) {
                AppendUtf8(line, static_cast<char32_t>(cell.chars[i]));
            }
            line += cell.chars[0] == 0 ? " " : "";
        }
        line.erase(line.find_last_not_of(' ') + 1);
        text += line + "\n";
    }
    return text;
}

}  // namespace horavex
