#pragma once

#include <string>

#include "platform/files.h"

namespace horavex {

/// Entries with which the user's session starts a program: "<baseName>.desktop" in the folder
/// "autostart" of ConfigHome. Failures are FileFaults.
class AutostartEntries {
public:
    /// executable: the absolute path of the program that each entry starts.
    AutostartEntries(Files& files, std::string executable)
        : files_(files), executable_(std::move(executable)) {}

    std::string Path(const std::string& baseName) const;
    bool Has(const std::string& baseName) const;

    /// Replaces an entry that is there, so that it names the program where it is now.
    void Write(const std::string& baseName);

    /// Deleting a missing entry is a fault.
    void Delete(const std::string& baseName);

private:
    Files& files_;
    std::string executable_;
};

}  // namespace horavex
