#include "linux/replace_file.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <filesystem>

#include "linux/descriptor.h"
#include "linux/system_call.h"
#include "linux/write_all.h"

namespace horavex {

namespace {

namespace fs = std::filesystem;

constexpr mode_t kNewFileMode = 0666;  // the process's mask takes its part away
constexpr mode_t kPermissionBits = 0777;

// A file under a name of its own in a folder; gone at its end of life unless renamed.
class TemporaryFile {
public:
    TemporaryFile(int folder, std::string path) : folder_(folder), path_(std::move(path)) {
        // A crash may have left names of an earlier process with this number.
        for (int n = 0; !file_.IsOpen(); ++n) {
            name_ = ".horavex-" + std::to_string(::getpid()) + "-" + std::to_string(n);
            constexpr int kFlags = O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW;
            file_ = Descriptor(::openat(folder_, name_.c_str(), kFlags, kNewFileMode));
            if (!file_.IsOpen() && errno != EEXIST) {
                ThrowFileFault(path_);
            }
        }
    }

    ~TemporaryFile() {
        if (!name_.empty()) {
            ::unlinkat(folder_, name_.c_str(), 0);
        }
    }

    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    // As far as the file system has permissions.
    void TakePermissionsOf(const char* name) const {
        struct stat old = {};
        if (::fstatat(folder_, name, &old, 0) == 0) {
            ::fchmod(file_.Number(), old.st_mode & kPermissionBits);
        }
    }

    void Write(ByteView bytes) const { WriteAll(file_, bytes, path_); }

    void Flush() const {
        if (::fsync(file_.Number()) != 0) {
            ThrowFileFault(path_);
        }
    }

    void RenameTo(const char* name) {
        if (::renameat(folder_, name_.c_str(), folder_, name) != 0) {
            ThrowFileFault(path_);
        }
        name_.clear();
    }

private:
    int folder_;
    std::string path_;
    std::string name_;
    Descriptor file_;
};

// A link stays a link: the file behind it is the one to replace. A link to nothing is replaced.
fs::path BehindLinks(const std::string& path) {
    std::error_code error;
    const fs::path target = fs::canonical(SystemPath(path), error);
    return error ? fs::path(path) : target;
}

// Makes the folder of a file first where it is missing.
Descriptor OpenFolderOf(const fs::path& file, const std::string& path) {
    const fs::path folder = file.has_parent_path() ? file.parent_path() : ".";
    std::error_code error;
    fs::create_directories(folder, error);
    if (error) {
        ThrowFileFault(path, error.value());
    }
    Descriptor descriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!descriptor.IsOpen()) {
        ThrowFileFault(path);
    }
    return descriptor;
}

// Some file systems cannot flush a folder and say so with EINVAL; they keep renames in order.
void FlushFolder(const Descriptor& folder, const std::string& path) {
    if (::fsync(folder.Number()) != 0 && errno != EINVAL) {
        ThrowFileFault(path);
    }
}

}  // namespace

void ReplaceFile(const std::string& path, ByteView bytes) {
    const fs::path target = BehindLinks(path);
    const std::string name = target.filename();
    const Descriptor folder = OpenFolderOf(target, path);
    TemporaryFile file(folder.Number(), path);
    file.TakePermissionsOf(name.c_str());
    file.Write(bytes);
    file.Flush();
    file.RenameTo(name.c_str());
    FlushFolder(folder, path);
}

}  // namespace horavex
