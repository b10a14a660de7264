#include "store/options.h"

#include <cmath>
#include <optional>

#include "base/fault.h"
#include "base/number_text.h"
#include "base/text.h"
#include "store/register.h"

namespace horavex {

namespace {

/// Empty for an absent value.
std::string ReadText(const char* name) {
    std::string text;
    CRegister().REGGetSetting(kLocalMachine, kOptionsKey, name, "", text);
    return text;
}

std::int32_t SaveText(const char* name, const std::string& text) {
    std::int32_t result = 0;
    return CRegister().REGSaveSetting(kLocalMachine, kOptionsKey, name, text, result);
}

std::optional<double> ReadNumber(const char* name) {
    const std::string text = ReadText(name);
    if (text.empty()) {
        return std::nullopt;
    }
    try {
        return TextToNumber(text);
    } catch (const Fault&) {
        return std::nullopt;
    }
}

template <typename Option>
bool Holds(const Option& option, double value) {
    return value >= option.least && value <= option.most;
}

template <typename Option>
std::int32_t SaveNumber(const Option& option, double value) {
    if (!Holds(option, value)) {
        throw BoundsFault(std::string("a value outside the range of the option ") + option.name);
    }
    return SaveText(option.name, NumberToText(value));
}

}  // namespace

int ReadOption(const WholeOption& option) {
    const double value = ReadNumber(option.name).value_or(option.base);
    return Holds(option, value) && std::floor(value) == value ? static_cast<int>(value)
                                                              : option.base;
}

double ReadOption(const DegreesOption& option) {
    const double value = ReadNumber(option.name).value_or(option.base);
    return Holds(option, value) ? value : option.base;
}

std::string ReadOption(const TextOption& option) {
    return ReadText(option.name);
}

std::int32_t SaveOption(const WholeOption& option, int value) {
    return SaveNumber(option, value);
}

std::int32_t SaveOption(const DegreesOption& option, double value) {
    return SaveNumber(option, value);
}

std::int32_t SaveOption(const TextOption& option, const std::string& value) {
    return SaveText(option.name, value);
}

std::size_t ReadOptionWord(const char* name, const char* const* words, std::size_t count) {
    const std::string stored = AsciiLower(ReadText(name));
    for (std::size_t i = 0; i < count; ++i) {
        if (stored == words[i]) {
            return i;
        }
    }
    return 0;
}

}  // namespace horavex
