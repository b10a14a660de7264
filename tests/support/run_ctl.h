#pragma once

#include <string>
#include <vector>

#include "support/run_program.h"
#include "support/temporary_folder.h"

namespace horavex {

/// The built horavexctl as a user runs it whose home folder is empty, in the zone of Greenwich.
class Ctl {
    TemporaryFolder home_;  // first, since the variables tell it

public:
    Ctl();

    /// The path of a name in the home folder.
    std::string operator/(const std::string& name) const { return home_ / name; }

    /// The variables of the runs; to be changed before a run.
    Environment variables;

    /// Runs the words of a line, which stand between single blanks, and then more words as they
    /// are.
    ProgramRun Run(const std::string& line, const std::vector<std::string>& more = {}) const;

    /// Makes a copy of the built program folder in the home folder the one that the runs read and
    /// write. Returns its path.
    std::string UseFolderCopy();

    /// Stores a value of the registry, as a line of the user's file.
    void StoreRegistryValue(const std::string& name, const std::string& value) const;
};

}  // namespace horavex
