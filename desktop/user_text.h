#pragma once

#include <QString>
#include <string>

#include "lang/own_digits.h"

namespace horavex {

/// A text of the core as users read it: in the digits that they chose.
inline QString UserText(const std::string& text) {
    return QString::fromStdString(InShownDigits(text));
}

inline QString UserText(const QString& text) {
    return UserText(text.toStdString());
}

/// A text that a user has typed, as the core reads it.
inline std::string TypedText(const QString& typed) {
    return InPlainDigits(typed.toStdString());
}

}  // namespace horavex
