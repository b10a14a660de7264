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
constexpr char32_t kBase = 10;

/// Sets that a text may come with whatever is shown, a time in the form of the user's locale for
/// one: plain, Arabic, Persian and Urdu, Bengali.
constexpr std::array<char32_t, 4> kKnownZeros = {kPlainZero, U'\u0660', U'\u06f0', U'\u09e6'};

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

/// A slash with something behind it, or an address.
bool BeginsPath(std::u32string_view word) {
    const bool beginsWithSlash = word.starts_with(U'/') || word.starts_with(U'\\');
    return (beginsWithSlash && word.size() > 1) || word.find(U"://") != word.npos;
}

using Letters = std::u32string::iterator;

void TurnWord(Letters begin, Letters end, char32_t zero) {
    if (std::none_of(begin, end, IsLatin)) {
        std::transform(begin, end, begin, [zero](char32_t letter) { return InSet(letter, zero); });
    }
}

void TurnLine(Letters begin, Letters end, char32_t zero) {
    for (Letters word = std::find_if_not(begin, end, IsBlank); word != end;) {
        const Letters behind = std::find_if(word, end, IsBlank);
        if (BeginsPath({word, behind})) {
            return;
        }
        TurnWord(word, behind, zero);
        word = std::find_if_not(behind, end, IsBlank);
    }
}

void TurnText(std::u32string& letters, char32_t zero) {
    for (Letters line = letters.begin(); line != letters.end();) {
        const Letters behind = std::find_if(line, letters.end(), EndsLine);
        TurnLine(line, behind, zero);
        line = std::find_if_not(behind, letters.end(), EndsLine);
    }
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
    auto letters = DecodeUtf8(text);
    if (!letters) {
        return text;
    }
    TurnText(*letters, zero);
    return Utf8Of(*letters);
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
    return shownZero == kPlainZero ? typed : WithDigits(typed, kPlainZero);
}

}  // namespace horavex
