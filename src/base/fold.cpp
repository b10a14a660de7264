#include "base/fold.h"

#include <algorithm>
#include <array>

#include "base/utf8.h"

namespace horavex {

namespace {

struct Folding {
    char32_t from;
    const char* to;
};

/// Letters that fold to several or that stand alone, in the order of their code points: those of
/// Windows-1252, some Latin ones beside them, and Arabic ones that are written for each other.
constexpr std::array kFoldings = {
    Folding{0xC0, "a"},   Folding{0xC1, "a"},    Folding{0xC2, "a"},   Folding{0xC3, "a"},
    Folding{0xC4, "a"},   Folding{0xC5, "a"},    Folding{0xC6, "ae"},  Folding{0xC7, "c"},
    Folding{0xC8, "e"},   Folding{0xC9, "e"},    Folding{0xCA, "e"},   Folding{0xCB, "e"},
    Folding{0xCC, "i"},   Folding{0xCD, "i"},    Folding{0xCE, "i"},   Folding{0xCF, "i"},
    Folding{0xD0, "d"},   Folding{0xD1, "n"},    Folding{0xD2, "o"},   Folding{0xD3, "o"},
    Folding{0xD4, "o"},   Folding{0xD5, "o"},    Folding{0xD6, "o"},   Folding{0xD8, "o"},
    Folding{0xD9, "u"},   Folding{0xDA, "u"},    Folding{0xDB, "u"},   Folding{0xDC, "u"},
    Folding{0xDD, "y"},   Folding{0xDE, "th"},   Folding{0xDF, "ss"},  Folding{0xE0, "a"},
    Folding{0xE1, "a"},   Folding{0xE2, "a"},    Folding{0xE3, "a"},   Folding{0xE4, "a"},
    Folding{0xE5, "a"},   Folding{0xE6, "ae"},   Folding{0xE7, "c"},   Folding{0xE8, "e"},
    Folding{0xE9, "e"},   Folding{0xEA, "e"},    Folding{0xEB, "e"},   Folding{0xEC, "i"},
    Folding{0xED, "i"},   Folding{0xEE, "i"},    Folding{0xEF, "i"},   Folding{0xF0, "d"},
    Folding{0xF1, "n"},   Folding{0xF2, "o"},    Folding{0xF3, "o"},   Folding{0xF4, "o"},
    Folding{0xF5, "o"},   Folding{0xF6, "o"},    Folding{0xF8, "o"},   Folding{0xF9, "u"},
    Folding{0xFA, "u"},   Folding{0xFB, "u"},    Folding{0xFC, "u"},   Folding{0xFD, "y"},
    Folding{0xFE, "th"},  Folding{0xFF, "y"},    Folding{0x132, "ij"}, Folding{0x133, "ij"},
    Folding{0x149, "n"},  Folding{0x14A, "ng"},  Folding{0x14B, "ng"}, Folding{0x152, "oe"},
    Folding{0x153, "oe"}, Folding{0x160, "s"},   Folding{0x161, "s"},  Folding{0x178, "y"},
    Folding{0x17D, "z"},  Folding{0x17E, "z"},   Folding{0x192, "f"},  Folding{0x259, "e"},
    Folding{0x2BB, "'"},  Folding{0x2BC, "'"},   Folding{0x2BE, "'"},  Folding{0x2BF, "'"},
    Folding{0x3C2, "σ"},  Folding{0x622, "ا"},   Folding{0x623, "ا"},  Folding{0x624, "و"},
    Folding{0x625, "ا"},  Folding{0x626, "ي"},   Folding{0x629, "ه"},  Folding{0x649, "ي"},
    Folding{0x671, "ا"},  Folding{0x6A9, "ك"},   Folding{0x6BE, "ه"},  Folding{0x6C0, "ه"},
    Folding{0x6C1, "ه"},  Folding{0x6C2, "ه"},   Folding{0x6C3, "ه"},  Folding{0x6CC, "ي"},
    Folding{0x6D5, "ه"},  Folding{0x1E9E, "ss"}, Folding{0x2018, "'"}, Folding{0x2019, "'"},
};

/// What the letters from a code point on fold to, each to one; a letter may stand for itself.
struct Run {
    char32_t first;
    std::u32string_view letters;
};

/// Latin Extended-A, -B and Additional, Greek, Cyrillic and its supplement, Armenian.
constexpr std::array kRuns = {
    Run{0x100,
        U"aaaaaaccccccccddddeeeeeeeeeegggggggghhhhiiiiiiiiiiĳĳjjkkkllllllllllnnnnnnŉŋŋooooooœœrrrrr"
        U"r"
        U"ssssssssttttttuuuuuuuuuuuuwwyyyzzzzzzs"},
    Run{0x180,
        U"bbbbƅƅoccddddƍeeeffgɣƕiikklƛɯnnoooƣƣpprƨƨʃƪttttuuʊvyyzzʒƹƹƺƻƽƽƾƿǀǁǂǃǆǆǆǉǉǉǌǌǌaaiioo"
        U"uuuuuuuuuueaaaaǣǣggggkkooooǯǯjǳǳǳggƕƿnnaaǽǽooaaaaeeeeiiiioooorrrruuuussttȝȝhhnȡȣȣzzaaee"
        U"ooooooooyyȴȵȶȷȸȹacclⱦȿɀɂɂbuʌeejjɋɋrryy"},
    Run{0x386,
        U"α·εηι΋ο΍υωιαβγδεζηθικλμνξοπρ΢στυφχψωιυ"
        U"αεηιυαβγδεζηθικλμνξοπρσστυφχψωιυουω"},
    Run{0x400,
        U"ееђгєѕііјљњћкиуџабвгдежзииклмнопрстуфхцчшщъыьэюя"
        U"абвгдежзииклмнопрстуфхцчшщъыьэюяееђгєѕііјљњћкиуџ"},
    Run{0x48A,
        U"ҋҋҍҍҏҏґґғғҕҕҗҗҙҙққҝҝҟҟҡҡңңҥҥҧҧҩҩҫҫҭҭүүұұҳҳҵҵҷҷҹҹһһҽҽҿҿӏжжӄӄӆӆӈӈӊӊӌӌӎӎӏ"
        U"ааааӕӕееәәәәжжззӡӡииииооөөөөээууууууччӷӷыыӻӻӽӽӿӿԁԁԃԃԅԅԇԇԉԉԋԋԍԍԏԏԑԑԓԓԕԕԗԗԙԙԛԛԝԝԟԟԡԡԣԣԥԥԧԧ"
        U"ԩԩԫԫԭԭԯԯ"},
    Run{0x531, U"աբգդեզէըթժիլխծկհձղճմյնշոչպջռսվտրցւփքօֆ"},
    Run{0x1E00,
        U"aabbbbbbccddddddddddeeeeeeeeeeffgghhhhhhhhhhiiiikkkkkkllllllllmmmmmmnnnnnnnnooooooooppppr"
        U"rrrrrrrssssssssssttttttttuuuuuuuuuuvvvvwwwwwwwwwwxxxxyyzzzzzzhtwyẚsẜẝẞẟaaaaaaaaaaaaaaaaaa"
        U"aaaaaaeeeeeeeeeeeeeeeeiiiioooooooooooooooooooooooouuuuuuuuuuuuuuyyyyyyyyỻỻỽỽỿỿ"},
};

struct Span {
    char32_t first;
    char32_t last;
};

/// Marks that are accents and vowel points, the stroke that makes an Arabic word longer, and
/// characters that show nothing.
constexpr std::array kMarks = {
    Span{0x300, 0x36F},   Span{0x483, 0x487}, Span{0x591, 0x5BD}, Span{0x5BF, 0x5BF},
    Span{0x5C1, 0x5C2},   Span{0x5C4, 0x5C5}, Span{0x5C7, 0x5C7}, Span{0x610, 0x61A},
    Span{0x640, 0x640},   Span{0x64B, 0x65F}, Span{0x670, 0x670}, Span{0x200B, 0x200F},
    Span{0xFEFF, 0xFEFF},
};

bool IsMark(char32_t codePoint) {
    return std::ranges::any_of(kMarks, [&](const Span& span) {
        return codePoint >= span.first && codePoint <= span.last;
    });
}

char32_t InRun(char32_t codePoint) {
    for (const Run& run : kRuns) {
        if (codePoint >= run.first && codePoint - run.first < run.letters.size()) {
            return run.letters[codePoint - run.first];
        }
    }
    return codePoint;
}

bool IsAscii(char c) {
    return static_cast<unsigned char>(c) < 0x80;
}

constexpr char SmallLetter(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// codePoint: beyond ASCII.
void AppendFolded(std::string& folded, char32_t codePoint) {
    const auto* found = std::lower_bound(
        kFoldings.begin(), kFoldings.end(), codePoint,
        [](const Folding& folding, char32_t wanted) { return folding.from < wanted; });
    if (found != kFoldings.end() && found->from == codePoint) {
        folded += found->to;
    } else if (!IsMark(codePoint)) {
        AppendUtf8(folded, InRun(codePoint));
    }
}

/// What characters fold to that follow each other.
template <char32_t first, char32_t end>
class FoldedRange {
public:
    FoldedRange() {
        for (char32_t codePoint = first; codePoint < end; ++codePoint) {
            AppendFolded(texts_.at(codePoint - first), codePoint);
        }
    }

    static bool Has(char32_t codePoint) { return codePoint >= first && codePoint < end; }
    std::string_view Of(char32_t codePoint) const { return texts_[codePoint - first]; }

private:
    std::array<std::string, end - first> texts_;
};

/// Nearly all that fold, in three ranges; other characters stay.
struct FoldedRanges {
    FoldedRange<0x80, 0x800> shortOnes;
    FoldedRange<0x1E00, 0x1F00> latin;
    FoldedRange<0x2000, 0x2020> signs;
};

constexpr char32_t kMarkOfOrder = 0xFEFF;

/// character: one, which is beyond ASCII, or a byte that is no part of any.
std::string_view FoldedOf(std::string_view character, char32_t codePoint) {
    static const FoldedRanges ranges;
    if (ranges.shortOnes.Has(codePoint)) {
        return ranges.shortOnes.Of(codePoint);
    }
    if (ranges.latin.Has(codePoint)) {
        return ranges.latin.Of(codePoint);
    }
    if (ranges.signs.Has(codePoint)) {
        return ranges.signs.Of(codePoint);
    }
    return codePoint == kMarkOfOrder ? std::string_view() : character;
}

/// The small letters of ASCII, each at its code.
constexpr auto kSmallAscii = [] {
    std::array<char, 0x80> letters{};
    for (std::size_t code = 0; code < letters.size(); ++code) {
        letters[code] = SmallLetter(static_cast<char>(code));
    }
    return letters;
}();

/// How many characters of ASCII a text begins with.
std::size_t AsciiBeginning(std::string_view text) {
    return static_cast<std::size_t>(std::ranges::find_if_not(text, IsAscii) - text.begin());
}

void AppendSmall(std::string& folded, std::string_view ascii) {
    const std::size_t before = folded.size();
    folded += ascii;
    std::ranges::transform(ascii, folded.begin() + static_cast<std::ptrdiff_t>(before),
                           SmallLetter);
}

}  // namespace

std::string_view TakeFolded(std::string_view& text) {
    const std::string_view before = text;
    if (IsAscii(text.front())) {
        text.remove_prefix(1);
        return {&kSmallAscii[static_cast<unsigned char>(before.front())], 1};
    }
    const auto codePoint = TakeCodePoint(text);
    if (!codePoint) {
        text.remove_prefix(1);
        return before.substr(0, 1);
    }
    return FoldedOf(before.substr(0, before.size() - text.size()), *codePoint);
}

std::string FoldForSearch(std::string_view text) {
    std::string folded;
    folded.reserve(text.size());
    while (!text.empty()) {
        if (const std::size_t ascii = AsciiBeginning(text); ascii > 0) {
            AppendSmall(folded, text.substr(0, ascii));
            text.remove_prefix(ascii);
        } else {
            folded += TakeFolded(text);
        }
    }
    return folded;
}

}  // namespace horavex
