#pragma once

#include <string>

namespace horavex {

enum class KeyCode {
    kCharacter,
    kEnter,
    kEscape,
    kTab,
    kBackTab,
    kUp,
    kDown,
    kLeft,
    kRight,
    kPageUp,
    kPageDown,
    kHome,
    kEnd,
    kBackspace,
    kDelete,
    kF1,
    kF6,
    kF9,
    kF10,
};

/// One key that a user has pressed.
struct KeyPress {
    KeyCode code = KeyCode::kCharacter;
    char32_t character = 0;  // of kCharacter alone
    bool alt = false;

    bool Is(char32_t c) const { return code == KeyCode::kCharacter && !alt && character == c; }

    /// A character to be written.
    bool IsText() const { return code == KeyCode::kCharacter && !alt && character >= U' '; }
};

inline KeyPress CharacterKey(char32_t character, bool alt = false) {
    return {KeyCode::kCharacter, character, alt};
}

}  // namespace horavex
