#pragma once

#include <vterm.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "support/terminal_process.h"

namespace horavex {

/// A terminal with a screen of its own and the built horavex-terminal in it, which it controls.
class VirtualTerminal {
public:
    VirtualTerminal(const std::vector<std::string>& arguments, const Environment& environment,
                    int rows = 24, int columns = 80);
    VirtualTerminal(const VirtualTerminal&) = delete;
    VirtualTerminal& operator=(const VirtualTerminal&) = delete;

    /// Waits until the screen is as it is to be, and returns its text. Throws after a minute and
    /// a half, and where the program ends before.
    std::string WaitUntil(const std::function<bool(const std::string&)>& isSo,
                          const std::string& what);
    std::string WaitFor(const std::string& text);
    std::string WaitForNo(const std::string& text);

    /// Waits until the program has nothing to write for a fifth of a second, which is longer than
    /// it takes for a key.
    void WaitForSilence();

    /// Types characters, or the sequences below.
    void Type(const std::string& keys) const { process_.Type(keys); }

    void Resize(int rows, int columns);
    void Signal(int signal) const { process_.Signal(signal); }

    /// Waits until the program has been stopped, which comes behind all that it writes before.
    void WaitForStop() const { process_.WaitForStop(); }

    /// Waits for the end and tells the exit status, as ProgramRun has it.
    int Wait();

    /// The screen as rows of text.
    std::string Text() const;

    /// All that the program has written.
    const std::string& Written() const { return written_; }

    /// Whether the other screen, which a program has to itself, is on view.
    bool IsOnOtherScreen() const { return isOnOtherScreen_; }

private:
    static constexpr int kTurn = 200;  // milliseconds

    struct FreeScreen {
        void operator()(VTerm* terminal) const { ::vterm_free(terminal); }
    };

    bool ReadMore(int milliseconds = kTurn);
    static int OnProperty(VTermProp property, VTermValue* value, void* self);

    TerminalProcess process_;
    std::unique_ptr<VTerm, FreeScreen> emulator_;
    VTermScreen* screen_ = nullptr;
    std::string written_;
    bool isOnOtherScreen_ = false;
};

namespace key {

inline constexpr const char* kUp = "\x1bOA";
inline constexpr const char* kDown = "\x1bOB";
inline constexpr const char* kRight = "\x1bOC";
inline constexpr const char* kLeft = "\x1bOD";
inline constexpr const char* kTab = "\t";
inline constexpr const char* kEnter = "\r";
inline constexpr const char* kEscape = "\x1b";
inline constexpr const char* kF2 = "\x1bOQ";
inline constexpr const char* kF10 = "\x1b[21~";

}  // namespace key

}  // namespace horavex
