#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <string>

#include "fuzz/target.h"
#include "linux/system_call.h"

namespace horavex {

/// A file that has a path as long as it lives and stands in no folder.
class NamelessFile {
public:
    explicit NamelessFile(ByteView bytes) : file_(::memfd_create("input", MFD_CLOEXEC)) {
        const ::ssize_t written = ::write(file_.Number(), bytes.data(), bytes.size());
        Require(written == static_cast<::ssize_t>(bytes.size()), "room for a file");
    }

    std::string Path() const { return "/proc/self/fd/" + std::to_string(file_.Number()); }

private:
    Descriptor file_;
};

}  // namespace horavex
