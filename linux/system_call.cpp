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

void WriteText(const Descriptor& file, std::string_view text, const std::string& path) {
    WriteAll(file, {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()}, path);
}

}  // namespace horavex
