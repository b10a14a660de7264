#pragma once

#include <string>

namespace horavex {

enum class MessageIcon { kNone, kInformation, kExclamation, kCritical };

/// Which file a user is asked for.
struct FileRequest {
    std::string title;   // of what is saved: proposed as the name of its file, too
    std::string filter;  // "label|pattern;pattern|" over and over
    int filterIndex;     // the label that comes first, 1-based
};

/// What is asked of the user outside the program's own windows.
class Dialogs {
public:
    virtual ~Dialogs() = default;

    /// A plain box with an OK button; returns when it is closed. An empty title stands for the
    /// application's.
    virtual void ShowMessage(const std::string& text, const std::string& title,
                             MessageIcon icon) = 0;

    /// The real path of a file that is there, or empty where the user chose none.
    virtual std::string OpenFile(const FileRequest& request) = 0;

    /// The system's beep, which returns at once.
    virtual void Beep() = 0;

    /// The real path of a file to write, or empty where the user chose none. A name without a
    /// suffix gets the given one, ".txt" for example; one that is there is asked about.
    virtual std::string SaveFile(const FileRequest& request, const std::string& suffix) = 0;
};

}  // namespace horavex
