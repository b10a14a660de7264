#include "linux/worker_processes.h"

#include <gtest/gtest.h>

#include <csignal>

namespace horavex {
namespace {

std::string Doubled(const std::string& text) {
    return text + text;
}

TEST(WorkerProcesses, AnswersComeInTheOrderOfTheRequests) {
    WorkerProcesses workers(3, Doubled);
    for (int request = 0; !workers.IsFull(); ++request) {
        workers.Ask(std::to_string(request));
    }
    for (int answer = 0; !workers.IsIdle(); ++answer) {
        EXPECT_EQ(workers.TakeAnswer(), Doubled(std::to_string(answer)));
    }
}

TEST(WorkerProcesses, LongRequestsAndAnswersDoNotBlockEachOther) {
    const std::string longest(WorkerProcesses::kLongest, 'x');
    const std::string huge(3'000'000, 'y');
    WorkerProcesses workers(2, [&](const std::string& request) { return request + huge; });
    while (!workers.IsFull()) {
        workers.Ask(longest);
    }
    while (!workers.IsIdle()) {
        EXPECT_EQ(workers.TakeAnswer().size(), longest.size() + huge.size());
    }
}

TEST(WorkerProcesses, EachKeepsItsOwnState) {
    int count = 10;
    WorkerProcesses workers(2, [&count](const std::string&) { return std::to_string(++count); });
    for (const char* answer : {"11", "11", "12", "12"}) {
        workers.Ask("next");
        EXPECT_EQ(workers.TakeAnswer(), answer);
    }
    EXPECT_EQ(count, 10);
}

TEST(WorkerProcesses, OneThatEndsIsAFault) {
    WorkerProcesses workers(1, [](const std::string&) -> std::string {
        std::raise(SIGKILL);
        return {};
    });
    workers.Ask("end");
    EXPECT_THROW(workers.TakeAnswer(), Fault);
}

TEST(WorkerProcesses, ExceptionInOneEndsItAlone) {
    WorkerProcesses workers(1, [](const std::string&) -> std::string { throw Fault("no"); });
    workers.Ask("end");
    EXPECT_THROW(workers.TakeAnswer(), Fault);
}

}  // namespace
}  // namespace horavex
