#include "ctl/console_files.h"

#include <unistd.h>

#include <iostream>

#include "base/plain_text.h"
#include "linux/file_status.h"
#include "linux/pipe_output.h"

namespace horavex {

namespace {

/// A write that fails is told at the end of the program, as that of any other output.
class StandardOutput : public OutputFile {
public:
    void Append(ByteView bytes) override {
        const std::string text = StringOf(bytes);
        std::cout << (isatty(STDOUT_FILENO) != 0 ? WithoutControls(text) : text);
    }
    void Commit() override { std::cout << std::flush; }
};

bool IsPipe(const std::string& path) {
    const auto status = StatusBehind(path);
    return status && S_ISFIFO(status->st_mode);
}

}  // namespace

std::unique_ptr<OutputFile> ConsoleFiles::OpenForWriting(const std::string& path) {
    if (path == kStandardOutput) {
        return std::make_unique<StandardOutput>();
    }
    if (IsPipe(path)) {
        return std::make_unique<PipeOutput>(path);
    }
    return PosixFiles::OpenForWriting(path);
}

}  // namespace horavex
