#include "terminal/virtual_terminal.h"

#include <chrono>
#include <stdexcept>

#include "base/utf8.h"

namespace horavex {

namespace {

constexpr std::chrono::seconds kPatience{90};

winsize SizeOf(int rows, int columns) {
    winsize size{};
    size.ws_row = static_cast<unsigned short>(rows);
    size.ws_col = static_cast<unsigned short>(columns);
    return size;
}

}  // namespace

VirtualTerminal::VirtualTerminal(const std::vector<std::string>& arguments,
                                 const Environment& environment, int rows, int columns)
    : process_("horavex-terminal", arguments, environment, SizeOf(rows, columns)),
      emulator_(::vterm_new(rows, columns)) {
    ::vterm_set_utf8(emulator_.get(), 1);
    screen_ = ::vterm_obtain_screen(emulator_.get());
    static VTermScreenCallbacks callbacks{};
    callbacks.settermprop = OnProperty;
    ::vterm_screen_set_callbacks(screen_, &callbacks, this);
    ::vterm_screen_enable_altscreen(screen_, 1);
    ::vterm_screen_reset(screen_, 1);
}

int VirtualTerminal::OnProperty(VTermProp property, VTermValue* value, void* self) {
    if (property == VTERM_PROP_ALTSCREEN) {
        static_cast<VirtualTerminal*>(self)->isOnOtherScreen_ = value->boolean != 0;
    }
    return 1;
}

bool VirtualTerminal::ReadMore(int milliseconds) {
    const std::size_t before = written_.size();
    const TerminalProcess::Came came = process_.ReadInto(written_, milliseconds);
    ::vterm_input_write(emulator_.get(), written_.data() + before, written_.size() - before);
    return came != TerminalProcess::Came::kEnd;
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

void VirtualTerminal::Resize(int rows, int columns) {
    ::vterm_set_size(emulator_.get(), rows, columns);
    process_.Resize(SizeOf(rows, columns));
}

int VirtualTerminal::Wait() {
    while (ReadMore()) {
    }
    return process_.Wait();
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
