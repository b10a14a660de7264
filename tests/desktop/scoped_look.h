#pragma once

#include <QApplication>

#include "desktop/look/look.h"

namespace horavex {

/// A theme for the length of a test.
class ScopedLook {
public:
    explicit ScopedLook(look::Theme theme) { look::Use(theme); }
    ~ScopedLook() { QApplication::setPalette(QPalette()); }
    ScopedLook(const ScopedLook&) = delete;
    ScopedLook& operator=(const ScopedLook&) = delete;
};

}  // namespace horavex
