#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "base/bytes.h"
#include "platform/files.h"

namespace horavex {

/// Undoes (and applies: it is its own inverse) the substitution under which the data files keep
/// their texts: codes 1 to 127 move up by 127, codes 128 to 254 down by 127, 0 and 255 stay. It
/// works on the bytes, before any code page makes them characters.
Bytes DecodeText(ByteView stored);

/// Length of a file over the length of a record, rounded half to even.
std::int64_t CountOfRecords(std::int64_t size, std::int64_t recordLength);

/// Throw BoundsFault, naming the file: for a record number below 1; for a text whose end lies
/// before its start, or that has some length and a start below 1.
void RefuseBadRecord(const std::string& path, std::int64_t number);
void RefuseBadText(const std::string& path, std::int64_t start, std::int64_t end);

/// A file of fixed-length records, numbered from 1.
class RecordFile {
public:
    RecordFile(std::string path, std::int64_t recordLength);

    /// The record's bytes; what lies behind the end of the file reads as zeros. Throws
    /// BoundsFault for a number below 1.
    Bytes Read(std::int64_t number) const;

    std::int64_t Count() const;

    /// True for the record with which the file ends exactly.
    bool IsLast(std::int64_t number) const;

private:
    std::string path_;
    std::int64_t recordLength_;
    std::unique_ptr<OpenFile> file_;
};

/// Reads the packed text from 1-based position start up to, not including, position end, and
/// undoes its substitution. Behind the end of the file there is nothing. Throws as RefuseBadText.
class PackedTexts {
public:
    explicit PackedTexts(const std::string& path);

    Bytes Read(std::int64_t start, std::int64_t end) const;

    /// The position behind the last byte.
    std::int64_t End() const;

private:
    std::string path_;
    std::unique_ptr<OpenFile> file_;
};

/// The text whose start stands in record number of the index; it ends where the next record's
/// text begins, or with the file for the last record. startOf takes a record's start from its
/// bytes.
Bytes ReadIndexedText(const RecordFile& index, const PackedTexts& texts, std::int64_t number,
                      std::int64_t (*startOf)(ByteView record));

/// The two widths of a start, at the head of a record.
std::int64_t ShortStart(ByteView record);
std::int64_t LongStart(ByteView record);

}  // namespace horavex
