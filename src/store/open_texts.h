#pragma once

#include <cstdint>
#include <string>

#include "store/indexed_file.h"
#include "store/text_table.h"

namespace horavex {

/// The files of TextItem, opened once for several texts. Throws FileFault for a missing one.
class OpenTexts {
public:
    OpenTexts();

    /// As TextItem.
    std::string Item(TextEntry entry, std::int16_t language) const;

private:
    PackedTexts texts_;
    RecordFile index_;
};

}  // namespace horavex
