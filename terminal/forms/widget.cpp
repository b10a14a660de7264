#include "terminal/forms/widget.h"

#include <wctype.h>

#include <algorithm>

#include "base/utf8.h"
#include "terminal/screen/glyphs.h"

namespace horavex {

namespace {

/// Where the sign before an access key stands; npos for none. One before a blank means "and".
std::size_t KeySign(const std::string& caption) {
    std::size_t at = caption.find('&');
    while (at != caption.npos && (at + 1 >= caption.size() || caption[at + 1] == ' ')) {
        at = caption.find('&', at + 1);
    }
    return at;
}

}  // namespace

std::string Widget::Hint() const {
    return control_ != nullptr && control_->Has(Property::kToolTipText) ? control_->ToolTipText()
                                                                        : std::string();
}

Tone Widget::ToneOf(bool hasFocus, Tone usual) const {
    if (control_ != nullptr && control_->Has(Property::kEnabled) && !control_->AcceptsUser()) {
        return Tone::kFaint;
    }
    return hasFocus ? Tone::kFocus : usual;
}

std::string WithoutKey(const std::string& caption) {
    const std::size_t at = KeySign(caption);
    return at == caption.npos ? caption : caption.substr(0, at) + caption.substr(at + 1);
}

char32_t AccessKey(const std::string& caption) {
    const std::size_t at = KeySign(caption);
    const auto rest = at == caption.npos ? std::nullopt : DecodeUtf8(caption.substr(at + 1));
    return rest && !rest->empty()
               ? static_cast<char32_t>(::towupper(static_cast<wint_t>(rest->front())))
               : 0;
}

void PutCaption(Cells& cells, const Area& area, const std::string& caption, const Look& look,
                bool fromRight) {
    const std::string shown = WithoutKey(caption);
    const int left = area.column + (fromRight ? std::max(0, area.width - WidthOf(shown)) : 0);
    cells.Put(area.row, left, shown, look, area.width);
    const std::size_t at = KeySign(caption);
    const int before = at == caption.npos ? area.width : WidthOf(caption.substr(0, at));
    const auto glyphs = GlyphsOf(shown.substr(std::min(at, shown.size())));
    if (before < area.width - 1 && !glyphs.empty()) {
        cells.Put(area.row, left + before, glyphs.front().text, {look.tone, true});
    }
}

}  // namespace horavex
