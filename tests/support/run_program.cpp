#include "support/run_program.h"

#include <sys/wait.h>

#include <fstream>
#include <iterator>

#include "support/build_folder.h"
#include "support/child_process.h"
#include "support/temporary_folder.h"

namespace horavex {

std::vector<char*> PointersOf(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    for (std::string& text : texts) {
        pointers.push_back(text.data());
    }
    pointers.push_back(nullptr);
    return pointers;
}

std::vector<std::string> AssignmentsOf(const Environment& environment) {
    const std::string status = "exitcode=" + std::to_string(kSanitizerStatus);
    const std::string leaks =
        "suppressions=" + SourcePath("tests/leaks.supp") + ":print_suppressions=0";
    std::vector<std::string> assignments = {"ASAN_OPTIONS=" + status, "UBSAN_OPTIONS=" + status,
                                            "LSAN_OPTIONS=" + leaks};
    for (const auto& [name, value] : environment) {
        assignments.push_back(name + "=" + value);
    }
    return assignments;
}

int ExitStatus(int waitStatus) {
    return WIFEXITED(waitStatus) ? WEXITSTATUS(waitStatus) : 128 + WTERMSIG(waitStatus);
}

std::string ContentOf(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

ProgramRun RunCommand(const std::vector<std::string>& words, const Environment& environment) {
    const TemporaryFolder folder;
    ChildProcess process(words, environment, folder / "out", folder / "err");
    const int status = process.Wait();
    return {status, ContentOf(folder / "out"), ContentOf(folder / "err")};
}

ProgramRun RunProgram(const std::string& name, const std::vector<std::string>& arguments,
                      const Environment& environment) {
    std::vector<std::string> words = {BuildPath("bin/" + name)};
    words.insert(words.end(), arguments.begin(), arguments.end());
    return RunCommand(words, environment);
}

}  // namespace horavex
