#include "base/fold.h"

#include <algorithm>
#include <array>

#include "base/text.h"
#include "base/utf8.h"

namespace horavex {

namespace {

struct Folding {
    char32_t from;
    const char* to;
};

/// The accented letters of Windows-1252, in the order of their code points.
constexpr std::array kFoldings = {
    Folding{0xC0, "a"},  Folding{0xC1, "a"},  Folding{0xC2, "a"},   Folding{0xC3, "a"},
    Folding{0xC4, "a"},  Folding{0xC5, "a"},  Folding{0xC6, "ae"},  Folding{0xC7, "c"},
    Folding{0xC8, "e"},  Folding{0xC9, "e"},  Folding{0xCA, "e"},   Folding{0xCB, "e"},
    Folding{0xCC, "i"},  Folding{0xCD, "i"},  Folding{0xCE, "i"},   Folding{0xCF, "i"},
    Folding{0xD0, "d"},  Folding{0xD1, "n"},  Folding{0xD2, "o"},   Folding{0xD3, "o"},
    Folding{0xD4, "o"},  Folding{0xD5, "o"},  Folding{0xD6, "o"},   Folding{0xD8, "o"},
    Folding{0xD9, "u"},  Folding{0xDA, "u"},  Folding{0xDB, "u"},   Folding{0xDC, "u"},
    Folding{0xDD, "y"},  Folding{0xDE, "th"}, Folding{0xDF, "ss"},  Folding{0xE0, "a"},
    Folding{0xE1, "a"},  Folding{0xE2, "a"},  Folding{0xE3, "a"},   Folding{0xE4, "a"},
    Folding{0xE5, "a"},  Folding{0xE6, "ae"}, Folding{0xE7, "c"},   Folding{0xE8, "e"},
    Folding{0xE9, "e"},  Folding{0xEA, "e"},  Folding{0xEB, "e"},   Folding{0xEC, "i"},
    Folding{0xED, "i"},  Folding{0xEE, "i"},  Folding{0xEF, "i"},   Folding{0xF0, "d"},
    Folding{0xF1, "n"},  Folding{0xF2, "o"},  Folding{0xF3, "o"},   Folding{0xF4, "o"},
    Folding{0xF5, "o"},  Folding{0xF6, "o"},  Folding{0xF8, "o"},   Folding{0xF9, "u"},
    Folding{0xFA, "u"},  Folding{0xFB, "u"},  Folding{0xFC, "u"},   Folding{0xFD, "y"},
    Folding{0xFE, "th"}, Folding{0xFF, "y"},  Folding{0x152, "oe"}, Folding{0x153, "oe"},
    Folding{0x160, "s"}, Folding{0x161, "s"}, Folding{0x178, "y"},  Folding{0x17D, "z"},
    Folding{0x17E, "z"}, Folding{0x192, "f"}, Folding{0x2018, "'"}, Folding{0x2019, "'"},
};

void AppendFolded(std::string& folded, char32_t codePoint) {
    const auto* found = std::lower_bound(
        kFoldings.begin(), kFoldings.end(), codePoint,
        [](const Folding& folding, char32_t wanted) { return folding.from < wanted; });
    if (found != kFoldings.end() && found->from == codePoint) {
        folded += found->to;
    } else {
        AppendUtf8(folded, codePoint);
    }
}

}  // namespace

std::string FoldForSearch(std::string_view text) {
    const auto codePoints = DecodeUtf8(text);
    if (!codePoints) {
        return AsciiLower(text);
    }
    std::string folded;
    for (const char32_t codePoint : *codePoints) {
        AppendFolded(folded, codePoint);
    }
    return AsciiLower(folded);
}

}  // namespace horavex
