#include "platform/memory_files.h"

#include <algorithm>
#include <utility>

#include "base/fault.h"

namespace horavex {

namespace {

class OpenMemoryFile : public OpenFile {
public:
    OpenMemoryFile(std::string path, std::shared_ptr<const Bytes> bytes)
        : path_(std::move(path)), bytes_(std::move(bytes)) {}

    std::int64_t Size() override { return static_cast<std::int64_t>(bytes_->size()); }

    Bytes ReadAt(std::int64_t offset, std::size_t count) override {
        if (offset < 0) {
            throw FileFault(path_, "negative offset");
        }
        const std::int64_t from = std::min(offset, Size());
        const auto rest = static_cast<std::size_t>(Size() - from);
        const auto first = bytes_->begin() + from;
        return Bytes(first, first + static_cast<std::ptrdiff_t>(std::min(count, rest)));
    }

private:
    std::string path_;
    std::shared_ptr<const Bytes> bytes_;
};

class MemoryOutputFile : public OutputFile {
public:
    MemoryOutputFile(MemoryFiles& files, std::string path)
        : files_(files), path_(std::move(path)) {}

    void Append(ByteView bytes) override {
        bytes_.insert(bytes_.end(), bytes.begin(), bytes.end());
    }

    void Commit() override { files_.WriteWhole(path_, bytes_); }

private:
    MemoryFiles& files_;
    std::string path_;
    Bytes bytes_;
};

}  // namespace

std::unique_ptr<OpenFile> MemoryFiles::OpenForReading(const std::string& path) {
    Contents(path);
    return std::make_unique<OpenMemoryFile>(path, files_.at(path));
}

std::unique_ptr<OutputFile> MemoryFiles::OpenForWriting(const std::string& path) {
    RefuseNoFile(path);
    return std::make_unique<MemoryOutputFile>(*this, path);
}

void MemoryFiles::WriteWhole(const std::string& path, ByteView bytes) {
    RefuseNoFile(path);
    files_[path] = std::make_shared<Bytes>(bytes.begin(), bytes.end());
}

void MemoryFiles::Delete(const std::string& path) {
    Contents(path);
    files_.erase(path);
}

bool MemoryFiles::Exists(const std::string& path) {
    return files_.contains(path) || IsFolder(path);
}

std::vector<std::string> MemoryFiles::List(const std::string& folder) {
    const std::string prefix = folder + "/";
    std::vector<std::string> names;
    for (auto at = files_.lower_bound(prefix); at != files_.end(); ++at) {
        if (!at->first.starts_with(prefix)) {
            break;
        }
        const std::size_t end = at->first.find('/', prefix.size());
        names.push_back(at->first.substr(prefix.size(), end - prefix.size()));
    }
    std::sort(names.begin(), names.end());
    names.erase(std::unique(names.begin(), names.end()), names.end());
    return names;
}

std::string MemoryFiles::StampOf(const std::string& path) {
    if (const auto file = files_.find(path); file != files_.end()) {
        return "file " + StringOf(*file->second);
    }
    std::string stamp = "folder";
    for (const std::string& name : List(path)) {
        stamp += "/" + name;
    }
    return stamp;
}

Bytes& MemoryFiles::Contents(const std::string& path) {
    RefuseFolder(path);
    const auto at = files_.find(path);
    if (at == files_.end()) {
        throw FileFault(path, "no such file");
    }
    return *at->second;
}

bool MemoryFiles::IsFolder(const std::string& path) const {
    const auto at = files_.lower_bound(path + "/");
    return at != files_.end() && at->first.starts_with(path + "/");
}

void MemoryFiles::RefuseFolder(const std::string& path) const {
    if (IsFolder(path)) {
        throw FileFault(path, "is a folder");
    }
}

void MemoryFiles::RefuseNoFile(const std::string& path) const {
    RefuseFolder(path);
    RefuseFileAsFolder(path);
}

void MemoryFiles::RefuseFileAsFolder(const std::string& path) const {
    for (std::size_t at = path.rfind('/'); at != 0 && at != std::string::npos;
         at = path.rfind('/', at - 1)) {
        if (files_.contains(path.substr(0, at))) {
            throw FileFault(path, "a file stands where its folder should be");
        }
    }
}

}  // namespace horavex
