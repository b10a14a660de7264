#include "linux/line_reader.h"

#include <fcntl.h>

#include <algorithm>

namespace horavex {

namespace {

constexpr std::size_t kBlock = 65536;  // bytes
constexpr const char* kStandardInput = "-";

Descriptor Open(const std::string& path) {
    if (path == kStandardInput) {
        return Descriptor();
    }
    Descriptor file(::open(SystemPath(path), O_RDONLY | O_CLOEXEC | O_NOCTTY));
    if (!file.IsOpen()) {
        ThrowFileFault(path);
    }
    return file;
}

}  // namespace

LineReader::LineReader(const std::string& path, std::size_t longest)
    : path_(path), own_(Open(path)), longest_(longest) {}

std::optional<std::string> LineReader::Next() {
    if (at_ == block_.size() && !Fill()) {
        return std::nullopt;
    }
    std::string line;
    bool ended = false;
    do {
        const std::size_t end = std::min(block_.find('\n', at_), block_.size());
        line.append(block_, at_, std::min(end - at_, longest_ - line.size()));
        ended = end < block_.size();
        at_ = ended ? end + 1 : end;
    } while (!ended && Fill());
    if (line.ends_with('\r')) {
        line.pop_back();
    }
    return line;
}

/// The next block; false at the end of the file.
bool LineReader::Fill() {
    block_.resize(kBlock);
    at_ = 0;
    const int number = own_.IsOpen() ? own_.Number() : STDIN_FILENO;
    ::ssize_t got = 0;
    do {
        got = ::read(number, block_.data(), block_.size());
    } while (got < 0 && errno == EINTR);
    block_.resize(got < 0 ? 0 : static_cast<std::size_t>(got));
    if (got < 0) {
        ThrowFileFault(path_);
    }
    return got > 0;
}

}  // namespace horavex
