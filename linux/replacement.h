#pragma once

#include <sys/stat.h>

#include <optional>
#include <string>

#include "base/bytes.h"
#include "linux/system_call.h"

namespace horavex {

/// How the temporary names begin; the number of the process and a count follow.
inline constexpr const char* kTemporaryPrefix = ".horavex-";

/// The new content of a regular file, on its way to the old one's name. It is written to a
/// temporary name in the same folder; at its end of life nothing stays that was not committed.
class Replacement {
public:
    /// Throws FileFault for a missing folder, and for what is there and is no regular file: a pipe,
    /// a device or a folder is never replaced.
    explicit Replacement(const std::string& path);
    ~Replacement();
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;

    void Append(ByteView bytes) const;

    /// Brings the content to the disk and onto the name, with the permissions of the old file. A
    /// link stays a link to the file.
    void Commit();

private:
    void OpenTemporary();
    void KeepPermissions() const;

    std::string path_;
    std::optional<struct stat> old_;
    std::string name_;  // in the folder
    Descriptor folder_;
    std::string temporaryName_;
    Descriptor file_;
};

}  // namespace horavex
