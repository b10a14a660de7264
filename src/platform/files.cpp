#include "platform/files.h"

#include "base/fault.h"

namespace horavex {

void RefuseLarger(OpenFile& file, const std::string& path, std::int64_t largest) {
    if (file.Size() > largest) {
        throw FileFault(path, "is larger than " + std::to_string(largest) + " bytes");
    }
}

Bytes ReadWhole(Files& files, const std::string& path, std::int64_t largest) {
    const auto file = files.OpenForReading(path);
    RefuseLarger(*file, path, largest);
    return file->ReadAt(0, static_cast<std::size_t>(file->Size()));
}

void WriteChosenFile(Files& files, const std::string& path, ByteView bytes) {
    const auto file = files.OpenForWriting(path);
    file->Append(bytes);
    file->Commit();
}

}  // namespace horavex
