#include "linux/system_call.h"

namespace horavex {

void WriteAll(const Descriptor& file, ByteView bytes, const std::string& path) {
    while (!bytes.empty()) {
        const ::ssize_t written = ::write(file.Number(), bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR) {
            ThrowFileFault(path);
        }
        bytes = bytes.subspan(written < 0 ? 0 : static_cast<std::size_t>(written));
    }
}

}  // namespace horavex
