#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "linux/system_call.h"

namespace horavex {

/// A regular file that grows at its end while it is read by others, so that what a run has written
/// stays when the run does not come to its end.
class GrowingFile {
public:
    /// Makes the file where there is none, and cuts it to that many bytes. Throws FileFault for a
    /// missing folder, and for what is there and is no regular file.
    GrowingFile(const std::string& path, std::int64_t keptBytes);

    /// Throws FileFault, for a full disk for one.
    void Append(std::string_view bytes) const;

private:
    std::string path_;
    Descriptor file_;
};

}  // namespace horavex
