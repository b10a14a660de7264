#include "store/text_table.h"

#include "base/int16.h"
#include "store/indexed_file.h"

namespace horavex {

CodePage TextColumnCodePage(std::int16_t language) {
    return language == kArabicColumn ? CodePage::kWindows1256 : CodePage::kWindows1252;
}

std::string TextItem(TextEntry entry, std::int16_t language) {
    if (language == 0) {
        language = 1;
    }
    const PackedTexts texts("Dat\\T.DAT");
    const RecordFile index("Dat\\TI.DAT", 2);
    const std::int16_t before = SubtractInt16(ToInt16(static_cast<std::uint16_t>(entry)), 1);
    const std::int16_t record = AddInt16(MultiplyInt16(before, kTextLanguages), language);
    return DecodeCodePage(ReadIndexedText(index, texts, record, ShortStart),
                          TextColumnCodePage(language));
}

}  // namespace horavex
