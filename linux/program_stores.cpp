#include "linux/program_stores.h"

#include "linux/file_status.h"
#include "linux/folders.h"

namespace horavex {

ProgramFolder FindProgramFolder(Files& files) {
    const ProgramFolders folders = FindProgramFolders();
    return {files, folders.user, folders.installed};
}

RegistryFile FindRegistry(Files& files) {
    const RegistryFiles paths = FindRegistryFiles();
    return {files, paths.user, paths.machine, StampOfFile};
}

}  // namespace horavex
