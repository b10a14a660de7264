#include "linux/held_files.h"

#include <algorithm>
#include <utility>

namespace horavex {

namespace {

class HeldFile : public OpenFile {
public:
    explicit HeldFile(std::shared_ptr<const Bytes> content) : content_(std::move(content)) {}

    std::int64_t Size() override { return static_cast<std::int64_t>(content_->size()); }

    Bytes ReadAt(std::int64_t offset, std::size_t count) override {
        const auto begin = std::clamp<std::int64_t>(offset, 0, Size());
        const auto end =
            begin + std::min<std::int64_t>(Size() - begin, static_cast<std::int64_t>(count));
        return {content_->begin() + begin, content_->begin() + end};
    }

private:
    std::shared_ptr<const Bytes> content_;
};

/// The answer to a question about a path, which is asked where it is not kept yet.
template <typename Answer, typename Ask>
const Answer& Kept(std::map<std::string, Answer>& answers, const std::string& path,
                   const Ask& ask) {
    const auto kept = answers.find(path);
    return kept != answers.end() ? kept->second : answers.emplace(path, ask(path)).first->second;
}

}  // namespace

std::unique_ptr<OpenFile> HeldFiles::OpenForReading(const std::string& path) {
    if (const auto kept = answers_.contents.find(path); kept != answers_.contents.end()) {
        return std::make_unique<HeldFile>(kept->second);
    }
    auto file = files_.OpenForReading(path);
    if (!isHolding_ || file->Size() > kLargestTable) {
        return file;
    }
    const auto size = static_cast<std::size_t>(file->Size());
    const auto content = std::make_shared<const Bytes>(file->ReadAt(0, size));
    answers_.contents.emplace(path, content);
    return std::make_unique<HeldFile>(content);
}

void HeldFiles::Release() {
    isHolding_ = false;
    answers_ = {};
}

std::unique_ptr<OutputFile> HeldFiles::OpenForWriting(const std::string& path) {
    Release();
    return files_.OpenForWriting(path);
}

void HeldFiles::WriteWhole(const std::string& path, ByteView bytes) {
    Release();
    files_.WriteWhole(path, bytes);
}

void HeldFiles::Delete(const std::string& path) {
    Release();
    files_.Delete(path);
}

bool HeldFiles::Exists(const std::string& path) {
    const auto ask = [this](const std::string& asked) { return files_.Exists(asked); };
    return isHolding_ ? Kept(answers_.there, path, ask) : ask(path);
}

std::string HeldFiles::StampOf(const std::string& path) {
    const auto ask = [this](const std::string& asked) { return files_.StampOf(asked); };
    return isHolding_ ? Kept(answers_.stamps, path, ask) : ask(path);
}

std::vector<std::string> HeldFiles::List(const std::string& folder) {
    const auto ask = [this](const std::string& asked) { return files_.List(asked); };
    return isHolding_ ? Kept(answers_.names, folder, ask) : ask(folder);
}

}  // namespace horavex
