#include "linux/file_status.h"

#include <fcntl.h>

#include <algorithm>
#include <cstdint>
#include <ctime>

#include "linux/shared_looks.h"
#include "linux/system_call.h"

namespace horavex {

namespace {

bool IsLink(const std::string& path) {
    struct stat status = {};
    return ::lstat(path.c_str(), &status) == 0 && S_ISLNK(status.st_mode);
}

// A name that is free is as settled as a file.
std::string StampOfError(int error) {
    return error == ENOENT ? "none" : "";
}

std::string StampOf(const struct stat& status) {
    std::string stamp;
    for (const auto number :
         {static_cast<std::int64_t>(status.st_dev), static_cast<std::int64_t>(status.st_ino),
          std::int64_t{status.st_size}, std::int64_t{status.st_mtim.tv_sec},
          std::int64_t{status.st_mtim.tv_nsec}, std::int64_t{status.st_ctim.tv_sec},
          std::int64_t{status.st_ctim.tv_nsec}}) {
        stamp += std::to_string(number) + " ";
    }
    return stamp;
}

std::string LookForStamp(const std::string& path) {
    struct stat status = {};
    return ::stat(path.c_str(), &status) == 0 ? StampOf(status) : StampOfError(errno);
}

std::string LookForSettledStamp(const std::string& path) {
    constexpr std::int64_t kLongestStep = 2;  // seconds
    struct stat status = {};
    if (::stat(path.c_str(), &status) != 0) {
        return StampOfError(errno);
    }
    const auto changed = std::max<std::int64_t>(status.st_mtim.tv_sec, status.st_ctim.tv_sec);
    return std::time(nullptr) - changed > kLongestStep ? StampOf(status) : "";
}

}  // namespace

std::optional<struct stat> StatusBehind(const std::string& path) {
    const Descriptor file(::open(SystemPath(path), O_PATH | O_CLOEXEC));
    const int error = errno;
    if (!file.IsOpen() && error == ENOENT && !IsLink(path)) {
        return std::nullopt;
    }
    struct stat status = {};
    if (!file.IsOpen() || ::fstat(file.Number(), &status) != 0) {
        ThrowFileFault(path, file.IsOpen() ? errno : error);
    }
    return status;
}

std::string StampOfFile(const std::string& path) {
    return SharedLooks::Of(LookForStamp, path);
}

std::string SettledStamp(const std::string& path) {
    return SharedLooks::Of(LookForSettledStamp, path);
}

void RefuseSpecial(const struct stat& status, const std::string& path) {
    if (!S_ISREG(status.st_mode)) {
        throw FileFault(path, "is no regular file");
    }
}

}  // namespace horavex
