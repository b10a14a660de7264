#include "linux/pipe_output.h"

#include <fcntl.h>
#include <sys/stat.h>

#include "linux/system_call.h"

namespace horavex {

PipeOutput::PipeOutput(const std::string& path)
    // Without O_NONBLOCK the open would wait for a reader.
    : path_(path), pipe_(::open(SystemPath(path), O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC)) {
    struct stat status = {};
    if (!pipe_.IsOpen() || ::fstat(pipe_.Number(), &status) != 0) {
        ThrowFileFault(path);
    }
    if (!S_ISFIFO(status.st_mode)) {
        throw FileFault(path, "is no pipe");
    }
    // From here on a reader that is slow is waited for.
    if (::fcntl(pipe_.Number(), F_SETFL, O_WRONLY) != 0) {
        ThrowFileFault(path);
    }
}

void PipeOutput::Append(ByteView bytes) {
    WriteAll(pipe_, bytes, path_);
}

}  // namespace horavex
