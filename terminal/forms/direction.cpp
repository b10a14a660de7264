#include "terminal/forms/direction.h"

#include <wctype.h>

#include <algorithm>

#include "base/utf8.h"
#include "terminal/screen/glyphs.h"

namespace horavex {

namespace {

bool HasLetter(const std::string& text) {
    const auto characters = DecodeUtf8(text).value_or(std::u32string());
    return std::any_of(characters.begin(), characters.end(),
                       [](char32_t c) { return ::iswalpha(static_cast<wint_t>(c)) != 0; });
}

/// Positive for right to left, negative for left to right.
int Vote(const Control& control) {
    const ControlKind kind = control.Kind();
    if (kind == ControlKind::kMenuItem || !control.Has(Property::kCaption) || !control.Visible() ||
        !HasLetter(control.Caption())) {
        return 0;
    }
    return RunsFromRight(control.Caption()) ? 1 : -1;
}

}  // namespace

bool CaptionsRunFromRight(const Form& form) {
    int votes = 0;
    for (const Control* control : form.Controls()) {
        votes += Vote(*control);
    }
    return votes > 0;
}

}  // namespace horavex
