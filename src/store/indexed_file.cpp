#include "store/indexed_file.h"

#include <algorithm>

#include "base/fault.h"
#include "base/rounding.h"
#include "platform/platform.h"

namespace horavex {

namespace {

std::uint8_t DecodeByte(std::uint8_t code) {
    if (code >= 1 && code <= 127) {
        return static_cast<std::uint8_t>(code + 127);
    }
    if (code >= 128 && code <= 254) {
        return static_cast<std::uint8_t>(code - 127);
    }
    return code;
}

}  // namespace

Bytes DecodeText(ByteView stored) {
    Bytes text(stored.size());
    std::transform(stored.begin(), stored.end(), text.begin(), DecodeByte);
    return text;
}

std::int64_t CountOfRecords(std::int64_t size, std::int64_t recordLength) {
    return static_cast<std::int64_t>(
        RoundHalfEven(static_cast<double>(size) / static_cast<double>(recordLength)));
}

void RefuseBadRecord(const std::string& path, std::int64_t number) {
    if (number < 1) {
        throw BoundsFault(path + ": there is no record " + std::to_string(number));
    }
}

void RefuseBadText(const std::string& path, std::int64_t start, std::int64_t end) {
    if (end < start || (end > start && start < 1)) {
        throw BoundsFault(path + ": no text from position " + std::to_string(start) + " to " +
                          std::to_string(end));
    }
}

RecordFile::RecordFile(std::string path, std::int64_t recordLength)
    : path_(std::move(path)),
      recordLength_(recordLength),
      file_(Ports().programFolder.OpenForReading(path_)) {}

Bytes RecordFile::Read(std::int64_t number) const {
    RefuseBadRecord(path_, number);
    const auto length = static_cast<std::size_t>(recordLength_);
    Bytes record = file_->ReadAt((number - 1) * recordLength_, length);
    record.resize(length);
    return record;
}

std::int64_t RecordFile::Count() const {
    return CountOfRecords(file_->Size(), recordLength_);
}

bool RecordFile::IsLast(std::int64_t number) const {
    return number * recordLength_ == file_->Size();
}

PackedTexts::PackedTexts(const std::string& path)
    : path_(path), file_(Ports().programFolder.OpenForReading(path)) {}

Bytes PackedTexts::Read(std::int64_t start, std::int64_t end) const {
    RefuseBadText(path_, start, end);
    return start == end
               ? Bytes()
               : DecodeText(file_->ReadAt(start - 1, static_cast<std::size_t>(end - start)));
}

std::int64_t PackedTexts::End() const {
    return file_->Size() + 1;
}

Bytes ReadIndexedText(const RecordFile& index, const PackedTexts& texts, std::int64_t number,
                      std::int64_t (*startOf)(ByteView record)) {
    const std::int64_t start = startOf(index.Read(number));
    const std::int64_t end = index.IsLast(number) ? texts.End() : startOf(index.Read(number + 1));
    return texts.Read(start, end);
}

std::int64_t ShortStart(ByteView record) {
    return GetInt16(record, 0);
}

std::int64_t LongStart(ByteView record) {
    return GetInt32(record, 0);
}

}  // namespace horavex
