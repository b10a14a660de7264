#include "linux/growing_file.h"

#include <fcntl.h>

#include "linux/file_status.h"

namespace horavex {

namespace {

constexpr int kPermissions = 0666;  // without those of the user's mask

Descriptor Open(const std::string& path) {
    if (const auto status = StatusBehind(path)) {
        RefuseSpecial(*status, path);
    }
    return Descriptor(
        ::open(SystemPath(path), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, kPermissions));
}

}  // namespace

GrowingFile::GrowingFile(const std::string& path, std::int64_t keptBytes)
    : path_(path), file_(Open(path)) {
    if (!file_.IsOpen() || ::ftruncate(file_.Number(), keptBytes) != 0) {
        ThrowFileFault(path);
    }
}

void GrowingFile::Append(std::string_view bytes) const {
    WriteText(file_, bytes, path_);
}

}  // namespace horavex
