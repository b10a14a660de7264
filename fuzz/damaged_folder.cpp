#include "fuzz/damaged_folder.h"

#include <algorithm>

namespace horavex {

namespace {

constexpr std::uint8_t kEnd = 255;

enum Kind { kOver, kAppend, kCut, kReplace, kRemove, kKinds };

/// Made once: it takes longer than all that is done to it.
const MemoryFiles& SampleFiles() {
    static const MemoryFiles sample = [] {
        MemoryFiles files;
        DataFolder(files).WriteSample();
        return files;
    }();
    return sample;
}

}  // namespace

DamagedFolder::DamagedFolder(FuzzInput& input, const std::vector<std::string>& files) {
    platform.files = SampleFiles();
    while (!input.IsEmpty()) {
        const std::uint8_t file = input.TakeByte();
        if (file == kEnd) {
            return;
        }
        Damage(input, files.at(file % files.size()));
    }
}

void DamagedFolder::Damage(FuzzInput& input, const std::string& file) {
    DataFolder folder(platform.files);
    const std::string path = "/program/" + file;
    const int kind = input.TakeByte() % kKinds;
    if (!platform.files.Exists(path) && kind != kReplace) {
        return;
    }
    const std::size_t where = static_cast<std::uint16_t>(input.TakeInt16());
    const ByteView bytes = input.TakeBytes(input.TakeByte());
    Bytes content = kind == kReplace ? Bytes() : platform.files.Contents(path);
    switch (kind) {
        case kOver:
            for (std::size_t i = 0; i < bytes.size() && where + i < content.size(); ++i) {
                content[where + i] = bytes[i];
            }
            break;
        case kCut:
            content.resize(content.size() - std::min(content.size(), where));
            break;
        case kRemove:
            platform.files.Delete(path);
            return;
        default:
            content.insert(content.end(), bytes.begin(), bytes.end());
    }
    folder.Write(file, content);
}

}  // namespace horavex
