#include "lang/own_digits.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <utility>

#include "base/program_state.h"
#include "base/utf8.h"
#include "lang/language_pack.h"

namespace horavex {

namespace {

constexpr char32_t kPlainZero = U'0';
constexpr char32_t kArabicZero = U'\u0660';
constexpr char32_t kBase = 10;
constexpr char32_t kUrduZero = U'\u06f0';
constexpr char32_t kLeftToRightMark = U'\u200e';
constexpr char32_t kArabicDecimalMark = U'\u066b';

/// Sets that a text may come with whatever is shown, a time in the form of the user's locale for
/// one: plain, Arabic, Persian and Urdu, Bengali.
constexpr std::array<char32_t, 4> kKnownZeros = {kPlainZero, kArabicZero, kUrduZero, U'\u09e6'};

bool ownDigitsAreWanted = false;
char32_t shownZero = kPlainZero;
std::function<void()> follow;

const ProgramStateReset reset([] {
    ownDigitsAreWanted = false;
    shownZero = kPlainZero;
});

std::optional<char32_t> ValueIn(char32_t letter, char32_t zero) {
    return letter >= zero && letter < zero + kBase ? std::optional(letter - zero) : std::nullopt;
}

/// The letter, or the digit of its value in the set of that zero.
char32_t InSet(char32_t letter, char32_t zero) {
    for (const char32_t known : kKnownZeros) {
        if (const auto value = ValueIn(letter, known)) {
            return zero + *value;
        }
    }
    const auto value = ValueIn(letter, shownZero);
    return value ? zero + *value : letter;
}

bool IsLatin(char32_t letter) {
    const char32_t small = letter | U'\x20';
    return small >= U'a' && small <= U'z';
}

bool IsBlank(char32_t letter) {
    return letter == U' ' || letter == U'\t' || letter == U'\u00a0';
}

bool EndsLine(char32_t letter) {
    return letter == U'\n' || letter == U'\r';
}

/// A word without the brackets and quotation marks before it.
std::u32string_view Unwrapped(std::u32string_view word) {
    const std::size_t begin =
        word.find_first_not_of(U"([{<\"'\u00ab\u2018\u201c\u2066\u2067\u2068");
    return begin == word.npos ? word : word.substr(begin);
}

/// A slash with something behind it, the home folder, or an address.
bool BeginsPath(std::u32string_view word) {
    const bool beginsWithSlash = word.starts_with(U'/') || word.starts_with(U'\\');
    return (beginsWithSlash && word.size() > 1) || word.starts_with(U"~/") ||
           word.find(U"://") != word.npos;
}

using Letters = std::u32string::iterator;

/// "A4", "UTC+2", and what ends like a file: "2026.pdf". A unit may follow its number: "11min".
bool IsName(std::u32string_view word) {
    const std::size_t point = word.find(U'.');
    return IsLatin(word.front()) ||
           (point != word.npos && point + 1 < word.size() && IsLatin(word[point + 1]));
}

bool IsDigit(char32_t letter) {
    return ValueIn(InSet(letter, kPlainZero), kPlainZero).has_value();
}

bool IsDecimalMark(char32_t letter) {
    return letter == U'.' || letter == kArabicDecimalMark;
}

char32_t DecimalMarkOf(char32_t zero) {
    return zero == kArabicZero || zero == kUrduZero ? kArabicDecimalMark : U'.';
}

/// The mark of a number that has just one, among whole hours and minutes at most: dates and times
/// of day keep their points. The end where there is none.
Letters DecimalMarkIn(Letters begin, Letters end) {
    const auto isWhole = [](char32_t letter) { return IsDigit(letter) || letter == U':'; };
    const Letters first = std::find_if(begin, end, IsDigit);
    const Letters mark = std::find_if_not(first, end, isWhole);
    if (mark == end || !IsDecimalMark(*mark)) {
        return end;
    }
    const Letters behind = std::find_if_not(mark + 1, end, IsDigit);
    const bool endsNumber = behind != mark + 1 && std::none_of(behind, end, IsDigit);
    return endsNumber ? mark : end;
}

void TurnWord(Letters begin, Letters end, char32_t zero) {
    if (IsName(Unwrapped({begin, end}))) {
        return;
    }
    if (const Letters mark = DecimalMarkIn(begin, end); mark != end) {
        *mark = DecimalMarkOf(zero);
    }
    std::transform(begin, end, begin, [zero](char32_t letter) { return InSet(letter, zero); });
}

void TurnLine(Letters begin, Letters end, char32_t zero) {
    for (Letters word = std::find_if_not(begin, end, IsBlank); word != end;) {
        const Letters behind = std::find_if(word, end, IsBlank);
        if (BeginsPath(Unwrapped({word, behind}))) {
            return;
        }
        TurnWord(word, behind, zero);
        word = std::find_if_not(behind, end, IsBlank);
    }
}

/// Whether the first letter is one of a script that runs from left to right.
bool RunsFromLeft(std::u32string_view line) {
    constexpr char32_t kFirstFromRight = U'\u0590';
    constexpr char32_t kLastFromRight = U'\u08ff';
    const auto isStrong = [](char32_t letter) {
        const bool fromRight = letter >= kFirstFromRight && letter <= kLastFromRight;
        return IsLatin(letter) || (fromRight && InSet(letter, kPlainZero) == letter);
    };
    const auto first = std::ranges::find_if(line, isStrong);
    return first != line.end() && IsLatin(*first);
}

/// Whether what lies behind a number leads to another one by blanks and marks alone. What joins the
/// parts of one number does not.
bool LeadsToNumber(std::u32string_view rest, char32_t zero) {
    if (rest.empty() || !(IsBlank(rest.front()) || rest.front() == U',')) {
        return false;
    }
    const std::size_t next = rest.find_first_not_of(U" \t\u00a0,;-\u2013/");
    return next != rest.npos && ValueIn(rest[next], zero);
}

/// Arabic numbers with nothing but marks between them run from the right even where a line runs
/// from the left: "April 4, 2026" would have its year first. A mark of direction keeps their order.
std::u32string InOrder(std::u32string_view line, char32_t zero) {
    std::u32string ordered;
    const bool keepsOrder = zero == kArabicZero && RunsFromLeft(line);
    for (std::size_t at = 0; at < line.size(); ++at) {
        ordered += line[at];
        if (keepsOrder && ValueIn(line[at], zero) && LeadsToNumber(line.substr(at + 1), zero)) {
            ordered += kLeftToRightMark;
        }
    }
    return ordered;
}

std::u32string Turned(std::u32string letters, char32_t zero) {
    std::u32string turned;
    for (Letters line = letters.begin(); line != letters.end();) {
        const Letters behind = std::find_if(line, letters.end(), EndsLine);
        TurnLine(line, behind, zero);
        turned += InOrder({line, behind}, zero);
        line = std::find_if_not(behind, letters.end(), EndsLine);
        turned.append(behind, line);
    }
    return turned;
}

std::string Utf8Of(const std::u32string& letters) {
    std::string text;
    for (const char32_t letter : letters) {
        AppendUtf8(text, letter);
    }
    return text;
}

void Show(char32_t zero) {
    if (std::exchange(shownZero, zero) != zero && follow) {
        follow();
    }
}

}  // namespace

std::string WithDigits(const std::string& text, char32_t zero) {
    const auto letters = DecodeUtf8(text);
    return letters ? Utf8Of(Turned(*letters, zero)) : text;
}

char32_t ZeroOfPack() {
    const auto digits = DecodeUtf8(GetLangString("timetables", "Digits", "")).value_or(U"");
    return digits.size() == kBase ? digits.front() : kPlainZero;
}

bool PackHasOwnDigits() {
    return ZeroOfPack() != kPlainZero;
}

void ShowOwnDigits(bool wanted) {
    ownDigitsAreWanted = wanted;
    FollowPackDigits();
}

void FollowPackDigits() {
    Show(ownDigitsAreWanted ? ZeroOfPack() : kPlainZero);
}

void InstallDigitsFollower(std::function<void()> follower) {
    follow = std::move(follower);
}

std::string InShownDigits(const std::string& text) {
    return shownZero == kPlainZero ? text : WithDigits(text, shownZero);
}

std::string InPlainDigits(const std::string& typed) {
    if (shownZero == kPlainZero) {
        return typed;
    }
    auto letters = DecodeUtf8(typed).value_or(U"");
    std::erase(letters, kLeftToRightMark);
    return IsUtf8(typed) ? Utf8Of(Turned(std::move(letters), kPlainZero)) : typed;
}

}  // namespace horavex
