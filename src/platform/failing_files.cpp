#include "platform/failing_files.h"

#include <utility>

#include "base/fault.h"

namespace horavex {

namespace {

void CountCall(NthCall& call, const std::string& path) {
    if (call.Count()) {
        throw FileFault(path, "failed on demand");
    }
}

class OpenFailingFile : public OpenFile {
public:
    OpenFailingFile(std::string path, std::unique_ptr<OpenFile> file, NthCall& call)
        : path_(std::move(path)), file_(std::move(file)), call_(call) {}

    std::int64_t Size() override { return file_->Size(); }

    Bytes ReadAt(std::int64_t offset, std::size_t count) override {
        CountCall(call_, path_);
        return file_->ReadAt(offset, count);
    }

private:
    std::string path_;
    std::unique_ptr<OpenFile> file_;
    NthCall& call_;
};

class FailingOutputFile : public OutputFile {
public:
    FailingOutputFile(std::string path, std::unique_ptr<OutputFile> file, NthCall& call)
        : path_(std::move(path)), file_(std::move(file)), call_(call) {}

    void Append(ByteView bytes) override {
        CountCall(call_, path_);
        file_->Append(bytes);
    }

    void Commit() override {
        CountCall(call_, path_);
        file_->Commit();
    }

private:
    std::string path_;
    std::unique_ptr<OutputFile> file_;
    NthCall& call_;
};

std::string TemporaryNameBeside(const std::string& path) {
    return path.substr(0, path.rfind('/') + 1) + ".half-written";
}

}  // namespace

void FailingFiles::FailCall(int n, WriteFailure writeFailure) {
    call_.Pick(n);
    writeFailure_ = writeFailure;
}

std::unique_ptr<OpenFile> FailingFiles::OpenForReading(const std::string& path) {
    CountCall(call_, path);
    return std::make_unique<OpenFailingFile>(path, files_.OpenForReading(path), call_);
}

std::unique_ptr<OutputFile> FailingFiles::OpenForWriting(const std::string& path) {
    CountCall(call_, path);
    return std::make_unique<FailingOutputFile>(path, files_.OpenForWriting(path), call_);
}

void FailingFiles::WriteWhole(const std::string& path, ByteView bytes) {
    try {
        CountCall(call_, path);
    } catch (const FileFault&) {
        if (writeFailure_ == WriteFailure::kHalfWay) {
            files_.WriteWhole(TemporaryNameBeside(path), bytes.first(bytes.size() / 2));
        }
        throw;
    }
    files_.WriteWhole(path, bytes);
}

void FailingFiles::Delete(const std::string& path) {
    CountCall(call_, path);
    files_.Delete(path);
}

bool FailingFiles::Exists(const std::string& path) {
    return files_.Exists(path);
}

std::vector<std::string> FailingFiles::List(const std::string& folder) {
    return files_.List(folder);
}

std::string FailingFiles::StampOf(const std::string& path) {
    return files_.StampOf(path);
}

}  // namespace horavex
