#pragma once

#include <functional>

#include "forms/form.h"
#include "forms/menu_item.h"

namespace horavex {

/// A window, and what opens it.
struct Opened {
    Form& form;
    std::function<void()> open;
};

inline std::function<void()> By(MenuItem& entry) {
    return [&entry] { entry.UserClick(); };
}

inline std::function<void()> Shown(Form& form) {
    return [&form] { form.Show(); };
}

}  // namespace horavex
