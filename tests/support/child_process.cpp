#include "support/child_process.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <stdexcept>
#include <utility>

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

}  // namespace

ChildProcess::ChildProcess(std::vector<std::string> words, const Environment& environment,
                           const std::string& out, const std::string& err) {
    const Streams streams(out, err);
    auto variables = AssignmentsOf(environment);
    if (posix_spawnp(&process_, words[0].c_str(), streams.Actions(), nullptr,
                     PointersOf(words).data(), PointersOf(variables).data()) != 0) {
        throw std::runtime_error("cannot run " + words[0]);
    }
}

ChildProcess::ChildProcess(ChildProcess&& other) noexcept
    : process_(std::exchange(other.process_, -1)) {}

ChildProcess::~ChildProcess() {
    if (process_ > 0) {
        Signal(SIGKILL);
        Wait();
    }
}

bool ChildProcess::IsRunning() const {
    siginfo_t ended{};
    ::waitid(P_PID, static_cast<id_t>(process_), &ended, WEXITED | WNOHANG | WNOWAIT);
    return ended.si_pid == 0;
}

void ChildProcess::Signal(int signal) const {
    ::kill(process_, signal);
}

int ChildProcess::Wait() {
    int status = 0;
    ::waitpid(std::exchange(process_, -1), &status, 0);
    return ExitStatus(status);
}

}  // namespace horavex
