#include "linux/replace_file.h"

#include <sys/stat.h>

#include <filesystem>

#include "linux/replacement.h"
#include "linux/system_call.h"

namespace horavex {

namespace {

namespace fs = std::filesystem;

constexpr mode_t kNewFolderMode = 0700;  // what is kept in it is nobody else's affair

// Makes what is missing of a folder.
void MakeFolder(const fs::path& folder, const std::string& path) {
    std::error_code error;
    if (folder.empty() || fs::is_directory(folder, error)) {
        return;
    }
    MakeFolder(folder.parent_path(), path);
    if (::mkdir(folder.c_str(), kNewFolderMode) != 0 && errno != EEXIST) {
        ThrowFileFault(path);
    }
}

}  // namespace

void ReplaceFile(const std::string& path, ByteView bytes) {
    MakeFolder(fs::path(SystemPath(path)).parent_path(), path);
    Replacement file(path);
    file.Append(bytes);
    file.Commit();
}

}  // namespace horavex
