#include "linux/replacement.h"

#include <fcntl.h>

#include <filesystem>

#include "linux/file_status.h"
#include "linux/shared_looks.h"
#include "linux/system_call.h"

namespace horavex {

namespace {

namespace fs = std::filesystem;

constexpr mode_t kNewFileMode = 0666;  // the process's mask takes its part away
constexpr mode_t kPermissionBits = 0777;

std::optional<struct stat> StatusOfRegular(const std::string& path) {
    const auto status = StatusBehind(path);
    if (status) {
        RefuseSpecial(*status, path);
    }
    return status;
}

// The path of the file itself, without links.
fs::path RealPath(const std::string& path) {
    std::error_code error;
    const fs::path real = fs::canonical(path, error);
    if (error) {
        ThrowFileFault(path, error.value());
    }
    return real;
}

Descriptor OpenFolderOf(const fs::path& file, const std::string& path) {
    const fs::path folder = file.has_parent_path() ? file.parent_path() : ".";
    Descriptor descriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!descriptor.IsOpen()) {
        ThrowFileFault(path);
    }
    return descriptor;
}

// Somebody may have exchanged a folder or a link since the file was looked at.
void RefuseAnother(const Descriptor& folder, const std::string& name, const struct stat& seen,
                   const std::string& path) {
    struct stat now = {};
    if (::fstatat(folder.Number(), name.c_str(), &now, AT_SYMLINK_NOFOLLOW) != 0 ||
        now.st_dev != seen.st_dev || now.st_ino != seen.st_ino) {
        throw FileFault(path, "is another file now");
    }
}

void Flush(const Descriptor& file, const std::string& path) {
    if (::fsync(file.Number()) != 0) {
        ThrowFileFault(path);
    }
}

// Some file systems cannot flush a folder and say so with EINVAL; they keep renames in order.
void FlushFolder(const Descriptor& folder, const std::string& path) {
    if (::fsync(folder.Number()) != 0 && errno != EINVAL) {
        ThrowFileFault(path);
    }
}

}  // namespace

Replacement::Replacement(const std::string& path) : path_(path), old_(StatusOfRegular(path)) {
    const fs::path target = old_ ? RealPath(path) : fs::path(path);
    name_ = target.filename();
    folder_ = OpenFolderOf(target, path);
    if (old_) {
        RefuseAnother(folder_, name_, *old_, path);
    }
    OpenTemporary();
    KeepPermissions();
}

Replacement::~Replacement() {
    if (!temporaryName_.empty()) {
        ::unlinkat(folder_.Number(), temporaryName_.c_str(), 0);
    }
}

void Replacement::OpenTemporary() {
    // A crash may have left names of an earlier process with this number.
    for (int n = 0; !file_.IsOpen(); ++n) {
        const std::string name =
            kTemporaryPrefix + std::to_string(::getpid()) + "-" + std::to_string(n);
        constexpr int kFlags = O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW;
        file_ = Descriptor(::openat(folder_.Number(), name.c_str(), kFlags, kNewFileMode));
        if (!file_.IsOpen() && errno != EEXIST) {
            ThrowFileFault(path_);
        }
        temporaryName_ = file_.IsOpen() ? name : "";
    }
}

void Replacement::Append(ByteView bytes) const {
    WriteAll(file_, bytes, path_);
}

// As far as the file system has permissions.
void Replacement::KeepPermissions() const {
    if (old_) {
        ::fchmod(file_.Number(), old_->st_mode & kPermissionBits);
    }
}

void Replacement::Commit() {
    Flush(file_, path_);
    if (::renameat(folder_.Number(), temporaryName_.c_str(), folder_.Number(), name_.c_str()) !=
        0) {
        ThrowFileFault(path_);
    }
    temporaryName_.clear();
    SharedLooks::Renew();
    FlushFolder(folder_, path_);
}

}  // namespace horavex
