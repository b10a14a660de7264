#include "store/text_table.h"

#include "base/int16.h"
#include "store/open_texts.h"

namespace horavex {

CodePage TextColumnCodePage(std::int16_t language) {
    return language == kArabicColumn ? CodePage::kWindows1256 : CodePage::kWindows1252;
}

OpenTexts::OpenTexts() : texts_("Dat\\T.DAT"), index_("Dat\\TI.DAT", 2) {}

std::string OpenTexts::Item(TextEntry entry, std::int16_t language) const {
    if (language == 0) {
        language = 1;
    }
    const std::int16_t before = SubtractInt16(ToInt16(static_cast<std::uint16_t>(entry)), 1);
    const std::int16_t record = AddInt16(MultiplyInt16(before, kTextLanguages), language);
    return DecodeCodePage(ReadIndexedText(index_, texts_, record, ShortStart),
                          TextColumnCodePage(language));
}

std::string TextItem(TextEntry entry, std::int16_t language) {
    return OpenTexts().Item(entry, language);
}

}  // namespace horavex
