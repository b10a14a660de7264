#include "support/program_copy.h"

#include <filesystem>
#include <vector>

#include "linux/posix_files.h"
#include "support/build_folder.h"

namespace horavex {

namespace {

/// The files of a folder and of those in it, or the one file that the path names.
std::vector<std::filesystem::path> FilesBelow(const std::filesystem::path& path) {
    if (!std::filesystem::is_directory(path)) {
        return {path};
    }
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(path)) {
        if (entry.is_regular_file()) {
            files.push_back(entry.path());
        }
    }
    return files;
}

}  // namespace

void CopyBuiltProgramFolder(MemoryFiles& files) {
    namespace fs = std::filesystem;
    PosixFiles disk;
    const fs::path source = BuiltProgramFolder();
    for (const char* part : {"Dat", "Horavex.HLP", "help", "lang"}) {
        for (const fs::path& file : FilesBelow(source / part)) {
            files.WriteWhole("/program/" + fs::relative(file, source).string(),
                             ReadWhole(disk, file));
        }
    }
}

}  // namespace horavex
