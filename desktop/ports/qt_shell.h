#pragma once

#include <memory>

#include "desktop/ports/help_window.h"
#include "linux/autostart_entry.h"
#include "platform/shell.h"

namespace horavex {

/// The services of the user's desktop; entries at its start name this executable.
class QtShell : public Shell {
public:
    explicit QtShell(Files& files);

    void OpenDateTimeTool() override;
    void OpenAddress(const std::string& address) override;
    bool StartProgram(const std::string& path) override;
    bool OpenSystemInformation() override;
    void ShowHelp(const HelpView& view) override;
    void CloseHelp() override;
    void WriteStartupEntry(const std::string& baseName) override { entries_.Write(baseName); }
    bool HasStartupEntry(const std::string& baseName) override { return entries_.Has(baseName); }
    void DeleteStartupEntry(const std::string& baseName) override { entries_.Delete(baseName); }
    std::string StartupEntryPath(const std::string& baseName) override {
        return entries_.Path(baseName);
    }

private:
    AutostartEntries entries_;
    std::unique_ptr<HelpWindow> help_;  // made at its first use
};

}  // namespace horavex
