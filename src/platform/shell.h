#pragma once

#include <string>

#include "platform/help_view.h"

namespace horavex {

/// The desktop's own services.
class Shell {
public:
    virtual ~Shell() = default;

    /// Opens the system's tool for date and time; nothing where there is none.
    virtual void OpenDateTimeTool() = 0;

    /// Opens a document or an address with what the user has for it; nothing where there is none.
    virtual void OpenAddress(const std::string& address) = 0;

    /// Starts a program, by its path, in a window of its own. False where that fails.
    virtual bool StartProgram(const std::string& path) = 0;

    /// Opens the desktop's tool that tells about the machine. False where there is none.
    virtual bool OpenSystemInformation() = 0;

    /// Opens the help viewer, or turns the one that is open to another page.
    virtual void ShowHelp(const HelpView& view) = 0;
    virtual void CloseHelp() = 0;

    /// The entry with which the user's session starts this program. Writing it again renews it.
    /// Throw FileFault where the entry cannot be written or deleted.
    virtual void WriteStartupEntry(const std::string& baseName) = 0;
    virtual bool HasStartupEntry(const std::string& baseName) = 0;
    virtual void DeleteStartupEntry(const std::string& baseName) = 0;

    /// What a message calls the entry.
    virtual std::string StartupEntryPath(const std::string& baseName) = 0;
};

}  // namespace horavex
