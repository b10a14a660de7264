#include "support/program_copy.h"

#include "linux/posix_files.h"
#include "support/build_folder.h"

namespace horavex {

void CopyBuiltProgramFolder(MemoryFiles& files) {
    PosixFiles disk;
    for (const std::string folder : {"Dat", "lang"}) {
        const std::string source = BuiltProgramFolder() + "/" + folder;
        for (const std::string& name : disk.List(source)) {
            files.WriteWhole("/program/" + folder + "/" + name,
                             ReadWhole(disk, source + "/" + name));
        }
    }
}

}  // namespace horavex
