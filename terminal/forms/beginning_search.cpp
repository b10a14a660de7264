#include "terminal/forms/beginning_search.h"

#include "base/utf8.h"
#include "lang/own_digits.h"
#include "terminal/screen/glyphs.h"

namespace horavex {

namespace {

constexpr double kTypingPause = 1.0;  // seconds that end a beginning

/// Numbers may stand and be typed in either digits.
std::u32string Compared(const std::string& text) {
    return Folded(InPlainDigits(text));
}

/// The first that begins so, from the given one on and round; -1 for none.
int FindFrom(int first, const std::u32string& beginning, const std::vector<std::string>& texts) {
    const auto count = static_cast<int>(texts.size());
    for (int step = 0; step < count; ++step) {
        const int at = (first + step) % count;
        if (Compared(texts[static_cast<std::size_t>(at)]).starts_with(beginning)) {
            return at;
        }
    }
    return -1;
}

}  // namespace

int BeginningSearch::After(char32_t letter, const std::vector<std::string>& texts, int at,
                           double seconds) {
    if (seconds - typedAt_ > kTypingPause) {
        typed_.clear();
    }
    typedAt_ = seconds;
    std::string written;
    AppendUtf8(written, letter);
    typed_ += Compared(written);
    const bool isOneLetter = typed_.find_first_not_of(typed_.front()) == typed_.npos;
    const int found = FindFrom(std::max(at, 0), typed_, texts);
    if (!isOneLetter || (typed_.size() > 1 && found >= 0)) {
        return found;
    }
    return FindFrom(at + 1, typed_.substr(0, 1), texts);
}

}  // namespace horavex
