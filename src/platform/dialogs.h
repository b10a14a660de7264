#pragma once

#include <string>

namespace horavex {

enum class MessageIcon { kNone, kInformation, kExclamation, kCritical };

/// What is asked of the user outside the program's own windows.
class Dialogs {
public:
    virtual ~Dialogs() = default;

    /// A plain box with an OK button; returns when it is closed. An empty title stands for the
    /// application's.
    virtual void ShowMessage(const std::string& text, const std::string& title,
                             MessageIcon icon) = 0;

    /// The system's beep, which returns at once.
    virtual void Beep() = 0;
};

}  // namespace horavex
