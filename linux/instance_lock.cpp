#include "linux/instance_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <cerrno>
#include <filesystem>

#include "linux/environment.h"

namespace horavex {

namespace {

// In a folder that others may write to, somebody else's file says nothing about this user.
bool IsOwnFile(const Descriptor& file) {
    struct stat status = {};
    return ::fstat(file.Number(), &status) == 0 && S_ISREG(status.st_mode) &&
           status.st_uid == ::geteuid();
}

}  // namespace

std::string InstanceLockPath() {
    if (const std::string folder = FolderVariable("XDG_RUNTIME_DIR"); !folder.empty()) {
        return folder + "/horavex.lock";
    }
    std::error_code error;
    const std::filesystem::path temporary = std::filesystem::temp_directory_path(error);
    return (error ? "/tmp" : temporary.string()) + "/horavex-" + std::to_string(::getuid()) +
           ".lock";
}

bool InstanceLock::AnotherIsRunning() {
    if (claim_.IsOpen()) {
        return false;
    }
    constexpr int kFlags = O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
    Descriptor file(::open(path_.c_str(), kFlags, S_IRUSR | S_IWUSR));
    if (!file.IsOpen() || !IsOwnFile(file)) {
        return false;
    }
    if (::flock(file.Number(), LOCK_EX | LOCK_NB) != 0) {
        return errno == EWOULDBLOCK;
    }
    claim_ = std::move(file);
    return false;
}

}  // namespace horavex
