#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/files.h"

namespace horavex {

/// Files of the system. Only regular files open: a folder, a pipe or a device is a FileFault at
/// once and never a wait. A write goes through a symbolic link to the file behind it, keeps the
/// permissions of the file that it replaces, and is on the disk when it returns. Nothing but a
/// regular file is replaced; a link that leads nowhere is a FileFault.
class PosixFiles : public Files {
public:
    std::unique_ptr<OpenFile> OpenForReading(const std::string& path) override;
    std::unique_ptr<OutputFile> OpenForWriting(const std::string& path) override;
    void WriteWhole(const std::string& path, ByteView bytes) override;
    void Delete(const std::string& path) override;
    bool Exists(const std::string& path) override;
    std::vector<std::string> List(const std::string& folder) override;
    std::string StampOf(const std::string& path) override;
};

}  // namespace horavex
