#include "linux/registry_escape.h"

namespace horavex {

namespace {

// Characters that a line cannot hold as they are, and the letters that stand for them.
constexpr std::string_view kCharacters = "\\\n\r \t";
constexpr std::string_view kLetters = "\\nrst";

// The character that a letter behind a backslash stands for; 0 for none.
char CharacterOf(char letter) {
    if (kMarkedInNames.find(letter) != std::string_view::npos) {
        return letter;
    }
    const std::size_t at = kLetters.find(letter);
    return at == std::string_view::npos ? '\0' : kCharacters[at];
}

}  // namespace

std::string EscapeRegistryText(std::string_view text, std::string_view marked) {
    std::string escaped;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        const bool isInnerBlank = (c == ' ' || c == '\t') && i > 0 && i + 1 < text.size();
        const std::size_t at = isInnerBlank ? std::string_view::npos : kCharacters.find(c);
        if (at != std::string_view::npos) {
            escaped += {'\\', kLetters[at]};
        } else if (marked.find(c) != std::string_view::npos) {
            escaped += {'\\', c};
        } else {
            escaped += c;
        }
    }
    return escaped;
}

std::string UnescapeRegistryText(std::string_view text) {
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isPair = text[i] == '\\' && i + 1 < text.size();
        const char meant = isPair ? CharacterOf(text[i + 1]) : '\0';
        plain += meant == '\0' ? text[i] : meant;
        i += meant == '\0' ? 0 : 1;
    }
    return plain;
}

}  // namespace horavex
