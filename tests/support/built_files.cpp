#include "support/built_files.h"

#include "support/program_copy.h"

namespace horavex {

const MemoryFiles& BuiltFiles() {
    static const MemoryFiles files = [] {
        MemoryFiles copy;
        CopyBuiltProgramFolder(copy);
        return copy;
    }();
    return files;
}

}  // namespace horavex
