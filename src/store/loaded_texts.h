#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "base/bytes.h"

namespace horavex {

/// An index of records and the texts that it points into, read whole for lists of all of them: what
/// RecordFile and ReadIndexedText (store/indexed_file.h) read one by one, and their faults.
class LoadedTexts {
public:
    /// A record's text begins where its first startWidth bytes say, 2 or 4 of them.
    LoadedTexts(std::string index, std::size_t recordLength, std::size_t startWidth,
                std::string texts);

    std::int64_t Count() const;

    /// Valid as long as this is. Throws as RefuseBadRecord.
    ByteView Record(std::int64_t number) const;

    /// The text of a record in UTF-8. Throws as RefuseBadRecord and RefuseBadText.
    std::string Text(std::int64_t number) const;

private:
    std::int64_t StartOf(std::int64_t number) const;

    std::string indexPath_;
    std::string textsPath_;
    std::size_t recordLength_;
    std::size_t startWidth_;
    Bytes index_;  // with zeros up to the end of its last record, and one more record of them
    std::int64_t indexSize_ = 0;
    Bytes texts_;  // decoded
};

}  // namespace horavex
