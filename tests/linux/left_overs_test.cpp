#include "linux/left_overs.h"

#include <sys/wait.h>
#include <unistd.h>

#include "linux/posix_files.h"
#include "support/temporary_folder.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// The number of a process that has run and is gone.
pid_t GoneProcess() {
    const pid_t child = ::fork();
    if (child == 0) {
        ::_exit(0);
    }
    ::waitpid(child, nullptr, 0);
    return child;
}

class LeftOversTest : public testing::Test {
protected:
    void Put(const std::string& name) { files.WriteWhole(folder / name, {}); }

    static std::string NameOf(pid_t process) {
        return ".horavex-" + std::to_string(process) + "-0";
    }

    TemporaryFolder folder;
    PosixFiles files;
};

TEST_F(LeftOversTest, NamesOfProcessesThatAreGoneAreDeletedInTheFolderAndInItsFolders) {
    Put(NameOf(GoneProcess()));
    Put("Dat/" + NameOf(GoneProcess()));
    Put("Dat/AI.DAT");
    ClearLeftOvers({folder.Path()});
    EXPECT_THAT(files.List(folder.Path()), ElementsAre("Dat"));
    EXPECT_THAT(files.List(folder / "Dat"), ElementsAre("AI.DAT"));
}

TEST_F(LeftOversTest, NamesOfEarlierProcessesWithThisNumberAreDeletedToo) {
    Put(NameOf(::getpid()));
    ClearLeftOvers({folder.Path()});
    EXPECT_THAT(files.List(folder.Path()), IsEmpty());
}

TEST_F(LeftOversTest, NameOfAProcessThatRunsStays) {
    Put(NameOf(::getppid()));
    ClearLeftOvers({folder.Path()});
    EXPECT_THAT(files.List(folder.Path()), ElementsAre(NameOf(::getppid())));
}

TEST_F(LeftOversTest, OtherNamesStay) {
    const std::string gone = std::to_string(GoneProcess());
    const std::vector<std::string> names = {".horavex-",        ".horavex-x-0",
                                            ".horavex--1-0",    ".horavex-0-0",
                                            ".horavex-" + gone, "horavex-" + gone + "-0"};
    for (const std::string& name : names) {
        Put(name);
    }
    ClearLeftOvers({folder.Path()});
    EXPECT_THAT(files.List(folder.Path()), testing::UnorderedElementsAreArray(names));
}

TEST_F(LeftOversTest, MissingFoldersAreNoFault) {
    EXPECT_NO_THROW(ClearLeftOvers({folder / "missing"}));
}

}  // namespace
}  // namespace horavex
