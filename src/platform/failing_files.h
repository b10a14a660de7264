#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/files.h"
#include "platform/nth_call.h"

namespace horavex {

/// How a write fails: before anything is done, or when half of the bytes are out. The latter
/// leaves what a power cut leaves: the old file and a half-written temporary name beside it.
enum class WriteFailure { kAtStart, kHalfWay };

/// Hands every call on to other files, but throws FileFault on one that the test picks. Opens,
/// reads, writes and deletes count, in the order in which they come.
class FailingFiles : public Files {
public:
    explicit FailingFiles(Files& files) : files_(files) {}

    /// The n-th counted call from now on fails, 1-based, and those behind it pass again; 0 lets
    /// all pass.
    void FailCall(int n, WriteFailure writeFailure = WriteFailure::kAtStart);

    /// Calls counted since the last FailCall.
    int Calls() const { return call_.Calls(); }

    std::unique_ptr<OpenFile> OpenForReading(const std::string& path) override;
    std::unique_ptr<OutputFile> OpenForWriting(const std::string& path) override;
    void WriteWhole(const std::string& path, ByteView bytes) override;
    void Delete(const std::string& path) override;
    bool Exists(const std::string& path) override;
    std::vector<std::string> List(const std::string& folder) override;
    std::string StampOf(const std::string& path) override;

private:
    Files& files_;
    NthCall call_;
    WriteFailure writeFailure_ = WriteFailure::kAtStart;
};

}  // namespace horavex
