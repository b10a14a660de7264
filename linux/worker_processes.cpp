#include "linux/worker_processes.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/wait.h>

#include <array>
#include <csignal>
#include <exception>

namespace horavex {

namespace {

constexpr const char* kName = "a worker process";
constexpr std::size_t kAhead = 8;             // requests that wait for one process at most
constexpr int kRoomForAnswers = 1024 * 1024;  // bytes; the usual 65536 hold no year's text

using Ends = std::array<Descriptor, 2>;

Ends EndsOf(const std::array<int, 2>& numbers, int result) {
    if (result != 0) {
        ThrowFileFault(kName);
    }
    return {Descriptor(numbers[0]), Descriptor(numbers[1])};
}

/// Keeps requests apart, and tells where the other end is gone instead of ending the program.
Ends RequestEnds() {
    std::array<int, 2> numbers{};
    return EndsOf(numbers, ::socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, numbers.data()));
}

/// The end to read from, and that to write to.
Ends AnswerEnds() {
    std::array<int, 2> numbers{};
    const int result = ::pipe2(numbers.data(), O_CLOEXEC);
    Ends ends = EndsOf(numbers, result);
    ::fcntl(ends[1].Number(), F_SETPIPE_SZ, kRoomForAnswers);  // less will do
    return ends;
}

/// Empty where no more requests come.
std::string NextRequest(const Descriptor& requests) {
    std::string request(WorkerProcesses::kLongest, '\0');
    ::ssize_t length = 0;
    do {
        length = ::recv(requests.Number(), request.data(), request.size(), 0);
    } while (length < 0 && errno == EINTR);
    request.resize(length < 0 ? 0 : static_cast<std::size_t>(length));
    return request;
}

void Send(const Descriptor& answers, const std::string& answer) {
    const std::uint64_t length = answer.size();
    WriteText(answers, {reinterpret_cast<const char*>(&length), sizeof length}, kName);
    WriteText(answers, answer, kName);
}

/// The life of a worker. What the program would do at its end is no affair of this process.
[[noreturn]] void Serve(const Descriptor& requests, const Descriptor& answers,
                        const WorkerProcesses::Work& work) {
    try {
        for (std::string request = NextRequest(requests); !request.empty();
             request = NextRequest(requests)) {
            Send(answers, work(request));
        }
    } catch (const std::exception&) {
        ::_exit(1);
    }
    ::_exit(0);
}

void ReadFully(const Descriptor& file, char* bytes, std::size_t count) {
    while (count > 0) {
        const ::ssize_t got = ::read(file.Number(), bytes, count);
        if (got == 0 || (got < 0 && errno != EINTR)) {
            throw Fault(std::string(kName) + " ended before its work");
        }
        const std::size_t read = got < 0 ? 0 : static_cast<std::size_t>(got);
        bytes += read;
        count -= read;
    }
}

}  // namespace

WorkerProcesses::WorkerProcesses(std::size_t count, const Work& work) : count_(count) {
    while (workers_.size() < count_) {
        Start(work);
    }
}

WorkerProcesses::~WorkerProcesses() {
    for (const Worker& worker : workers_) {
        ::kill(worker.process, SIGKILL);
        ::waitpid(worker.process, nullptr, 0);
    }
}

void WorkerProcesses::Start(const Work& work) {
    Ends requests = RequestEnds();
    Ends answers = AnswerEnds();
    const pid_t process = ::fork();
    if (process < 0) {
        ThrowFileFault(kName);
    }
    if (process == 0) {
        // The ends of others, too: their readers must see when this program is gone.
        requests[0] = Descriptor();
        answers[0] = Descriptor();
        workers_.clear();
        Serve(requests[1], answers[1], work);
    }
    workers_.push_back({process, std::move(requests[0]), std::move(answers[0])});
}

bool WorkerProcesses::IsFull() const {
    return asked_ - taken_ == count_ * kAhead;
}

void WorkerProcesses::Ask(const std::string& request) {
    const Descriptor& requests = WorkerOf(asked_).requests;
    ::ssize_t sent = 0;
    do {
        sent = ::send(requests.Number(), request.data(), request.size(), MSG_NOSIGNAL);
    } while (sent < 0 && errno == EINTR);
    if (sent < 0) {
        ThrowFileFault(kName);
    }
    ++asked_;
}

std::string WorkerProcesses::TakeAnswer() {
    const Descriptor& answers = WorkerOf(taken_).answers;
    std::uint64_t length = 0;
    ReadFully(answers, reinterpret_cast<char*>(&length), sizeof length);
    std::string answer(length, '\0');
    ReadFully(answers, answer.data(), answer.size());
    ++taken_;
    return answer;
}

}  // namespace horavex
