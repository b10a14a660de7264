#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/files.h"

namespace horavex {

/// Files in memory under absolute paths with '/'. A folder is there as long as a file is in it; one
/// that is to be written into is there always.
class MemoryFiles : public Files {
public:
    std::unique_ptr<OpenFile> OpenForReading(const std::string& path) override;
    std::unique_ptr<OutputFile> OpenForWriting(const std::string& path) override;
    void WriteWhole(const std::string& path, ByteView bytes) override;
    void Delete(const std::string& path) override;
    bool Exists(const std::string& path) override;
    std::vector<std::string> List(const std::string& folder) override;

    /// The content itself.
    std::string StampOf(const std::string& path) override;

    /// The bytes of an existing file, to be changed in place as another program would: files
    /// that are open see the change, while WriteWhole leaves them the old content. Throws
    /// FileFault for a missing file.
    Bytes& Contents(const std::string& path);

private:
    bool IsFolder(const std::string& path) const;
    void RefuseFolder(const std::string& path) const;
    void RefuseFileAsFolder(const std::string& path) const;
    void RefuseNoFile(const std::string& path) const;

    std::map<std::string, std::shared_ptr<Bytes>> files_;
};

}  // namespace horavex
