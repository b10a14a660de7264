#include "support/run_program.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>
#include <iterator>
#include <stdexcept>

#include "support/build_folder.h"
#include "support/temporary_folder.h"

namespace horavex {

namespace {

/// The three standard streams of a program to be: nothing, and two files.
class Streams {
public:
    Streams(const std::string& out, const std::string& err) {
        posix_spawn_file_actions_init(&actions_);
        posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        Catch(STDOUT_FILENO, out);
        Catch(STDERR_FILENO, err);
    }
    ~Streams() { posix_spawn_file_actions_destroy(&actions_); }
    Streams(const Streams&) = delete;
    Streams& operator=(const Streams&) = delete;

    const posix_spawn_file_actions_t* Actions() const { return &actions_; }

private:
    void Catch(int stream, const std::string& path) {
        posix_spawn_file_actions_addopen(&actions_, stream, path.c_str(),
                                         O_WRONLY | O_CREAT | O_TRUNC, 0600);
    }

    posix_spawn_file_actions_t actions_{};
};

std::string ContentOf(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

}  // namespace

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
    std::vector<std::string> assignments = {"ASAN_OPTIONS=" + status, "UBSAN_OPTIONS=" + status};
    for (const auto& [name, value] : environment) {
        assignments.push_back(name + "=" + value);
    }
    return assignments;
}

int ExitStatus(int waitStatus) {
    return WIFEXITED(waitStatus) ? WEXITSTATUS(waitStatus) : 128 + WTERMSIG(waitStatus);
}

ProgramRun RunProgram(const std::string& name, const std::vector<std::string>& arguments,
                      const Environment& environment) {
    const TemporaryFolder folder;
    const Streams streams(folder / "out", folder / "err");
    std::vector<std::string> words = {BuildPath("bin/" + name)};
    words.insert(words.end(), arguments.begin(), arguments.end());
    auto variables = AssignmentsOf(environment);
    pid_t process = 0;
    if (posix_spawn(&process, words[0].c_str(), streams.Actions(), nullptr,
                    PointersOf(words).data(), PointersOf(variables).data()) != 0) {
        throw std::runtime_error("cannot run " + words[0]);
    }
    int status = 0;
    ::waitpid(process, &status, 0);
    return {ExitStatus(status), ContentOf(folder / "out"), ContentOf(folder / "err")};
}

}  // namespace horavex
