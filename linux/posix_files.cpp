#include "linux/posix_files.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <utility>

#include "base/fault.h"
#include "linux/file_status.h"
#include "linux/replace_file.h"
#include "linux/replacement.h"
#include "linux/shared_looks.h"
#include "linux/system_call.h"

namespace horavex {

namespace {

namespace fs = std::filesystem;

struct stat StatusOf(const Descriptor& file, const std::string& path) {
    struct stat status = {};
    if (::fstat(file.Number(), &status) != 0) {
        ThrowFileFault(path);
    }
    return status;
}

class OpenPosixFile : public OpenFile {
public:
    OpenPosixFile(std::string path, Descriptor file)
        : path_(std::move(path)), file_(std::move(file)) {}

    std::int64_t Size() override { return StatusOf(file_, path_).st_size; }

    Bytes ReadAt(std::int64_t offset, std::size_t count) override {
        if (offset < 0) {
            ThrowFileFault(path_, EINVAL);
        }
        Bytes bytes = WithMemoryFaults([&] { return Bytes(RoomFor(offset, count)); });
        bytes.resize(Fill(bytes, offset));
        return bytes;
    }

private:
    // The count may come out of a damaged file: where it is large, room is made for what is there
    // at most. Records and names are read by thousands, without a look at the file's length.
    std::size_t RoomFor(std::int64_t offset, std::size_t count) {
        constexpr std::size_t kSmall = 4096;                       // bytes
        constexpr std::int64_t kFarthest = std::int64_t{1} << 40;  // behind which there is nothing
        if (count <= kSmall && offset <= kFarthest) {
            return count;
        }
        const std::int64_t rest = std::max<std::int64_t>(Size() - offset, 0);
        return std::min(count, static_cast<std::size_t>(rest));
    }

    // The count of bytes read; fewer than asked for where the file has shrunk meanwhile.
    std::size_t Fill(std::span<std::uint8_t> bytes, std::int64_t offset) const {
        std::size_t filled = 0;
        while (filled < bytes.size()) {
            const ::ssize_t got =
                ::pread(file_.Number(), bytes.data() + filled, bytes.size() - filled,
                        offset + static_cast<std::int64_t>(filled));
            if (got == 0) {
                break;
            }
            if (got < 0 && errno != EINTR) {
                ThrowFileFault(path_);
            }
            filled += got < 0 ? 0 : static_cast<std::size_t>(got);
        }
        return filled;
    }

    std::string path_;
    Descriptor file_;
};

class PosixOutputFile : public OutputFile {
public:
    explicit PosixOutputFile(const std::string& path) : file_(path) {}

    void Append(ByteView bytes) override { file_.Append(bytes); }
    void Commit() override { file_.Commit(); }

private:
    Replacement file_;
};

// The open of a device may do something already, so that it is refused before; the second look is
// at what has been opened.
Descriptor OpenRegular(const std::string& path) {
    if (const auto status = StatusBehind(path)) {
        RefuseSpecial(*status, path);
    }
    // Without O_NONBLOCK the open of a pipe would wait for its other end.
    Descriptor file(::open(SystemPath(path), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    if (!file.IsOpen()) {
        ThrowFileFault(path);
    }
    RefuseSpecial(StatusOf(file, path), path);
    return file;
}

bool MeansMissing(const std::error_code& error) {
    return error == std::errc::no_such_file_or_directory || error == std::errc::not_a_directory;
}

}  // namespace

std::unique_ptr<OpenFile> PosixFiles::OpenForReading(const std::string& path) {
    return std::make_unique<OpenPosixFile>(path, OpenRegular(path));
}

std::unique_ptr<OutputFile> PosixFiles::OpenForWriting(const std::string& path) {
    return std::make_unique<PosixOutputFile>(path);
}

void PosixFiles::WriteWhole(const std::string& path, ByteView bytes) {
    ReplaceFile(path, bytes);
}

void PosixFiles::Delete(const std::string& path) {
    if (::unlink(SystemPath(path)) != 0) {
        ThrowFileFault(path);
    }
    SharedLooks::Renew();
}

bool PosixFiles::Exists(const std::string& path) {
    std::error_code error;
    const bool exists = fs::exists(SystemPath(path), error);
    if (error) {
        ThrowFileFault(path, error.value());
    }
    return exists;
}

std::vector<std::string> PosixFiles::List(const std::string& folder) {
    std::vector<std::string> names;
    std::error_code error;
    for (fs::directory_iterator at(SystemPath(folder), error); !error && at != fs::end(at);
         at.increment(error)) {
        names.push_back(at->path().filename());
    }
    if (error && !MeansMissing(error)) {
        ThrowFileFault(folder, error.value());
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::string PosixFiles::StampOf(const std::string& path) {
    return SettledStamp(path);
}

}  // namespace horavex
