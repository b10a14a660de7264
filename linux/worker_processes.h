#pragma once

#include <sys/types.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "linux/system_call.h"

namespace horavex {

/// Processes that answer requests beside each other, for work that goes over the state of the
/// program: each begins with a copy of the state as it stands and keeps its own. Answers come in
/// the order of the requests, and only so many wait that memory does not grow.
class WorkerProcesses {
public:
    using Work = std::function<std::string(const std::string& request)>;

    /// The bytes of the longest request.
    static constexpr std::size_t kLongest = 4096;

    /// Starts them. count: 1 or more. Throws FileFault where the system has no room for one more.
    WorkerProcesses(std::size_t count, const Work& work);

    /// Ends them, whatever they are at.
    ~WorkerProcesses();
    WorkerProcesses(const WorkerProcesses&) = delete;
    WorkerProcesses& operator=(const WorkerProcesses&) = delete;

    /// No answer is to come.
    bool IsIdle() const { return asked_ == taken_; }

    /// An answer is to be taken before the next request.
    bool IsFull() const;

    /// Hands a request to the next process: 1 to kLongest bytes. Throws Fault for a process that is
    /// no more.
    void Ask(const std::string& request);

    /// Waits for the answer to the earliest request that has none. Throws Fault where its process
    /// ended before.
    std::string TakeAnswer();

private:
    struct Worker {
        pid_t process;
        Descriptor requests;
        Descriptor answers;
    };

    void Start(const Work& work);
    const Worker& WorkerOf(std::uint64_t request) const { return workers_[request % count_]; }

    std::size_t count_;
    std::vector<Worker> workers_;
    std::uint64_t asked_ = 0;
    std::uint64_t taken_ = 0;
};

}  // namespace horavex
