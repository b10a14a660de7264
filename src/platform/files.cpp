#include "platform/files.h"

namespace horavex {

Bytes ReadWhole(Files& files, const std::string& path) {
    const auto file = files.OpenForReading(path);
    return file->ReadAt(0, static_cast<std::size_t>(file->Size()));
}

}  // namespace horavex
