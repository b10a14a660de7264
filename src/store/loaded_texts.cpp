#include "store/loaded_texts.h"

#include <algorithm>
#include <utility>

#include "base/code_page.h"
#include "platform/platform.h"
#include "store/indexed_file.h"

namespace horavex {

LoadedTexts::LoadedTexts(std::string index, std::size_t recordLength, std::size_t startWidth,
                         std::string texts)
    : indexPath_(std::move(index)),
      textsPath_(std::move(texts)),
      recordLength_(recordLength),
      startWidth_(startWidth),
      index_(Ports().programFolder.ReadWhole(indexPath_)),
      indexSize_(std::ssize(index_)),
      texts_(DecodeText(Ports().programFolder.ReadWhole(textsPath_))) {
    const std::size_t records = (index_.size() + recordLength - 1) / recordLength;
    index_.resize((records + 1) * recordLength);
}

std::int64_t LoadedTexts::Count() const {
    return CountOfRecords(indexSize_, static_cast<std::int64_t>(recordLength_));
}

ByteView LoadedTexts::Record(std::int64_t number) const {
    if (number < 1) {
        RefuseBadRecord(indexPath_, number);
    }
    const std::size_t zeros = index_.size() - recordLength_;
    const std::size_t offset = static_cast<std::size_t>(number - 1) * recordLength_;
    return ByteView(index_).subspan(std::min(offset, zeros), recordLength_);
}

std::string LoadedTexts::Text(std::int64_t number) const {
    const bool isLast = number * static_cast<std::int64_t>(recordLength_) == indexSize_;
    const std::int64_t behind = std::ssize(texts_) + 1;
    const std::int64_t start = StartOf(number);
    const std::int64_t end = isLast ? behind : StartOf(number + 1);
    RefuseBadText(textsPath_, start, end);
    if (start == end || start >= behind) {
        return {};
    }
    const ByteView text =
        ByteView(texts_).subspan(static_cast<std::size_t>(start - 1),
                                 static_cast<std::size_t>(std::min(end, behind) - start));
    return DecodeCodePage(text, CodePage::kWindows1252);
}

std::int64_t LoadedTexts::StartOf(std::int64_t number) const {
    const ByteView record = Record(number);
    return startWidth_ == 2 ? ShortStart(record) : LongStart(record);
}

}  // namespace horavex
