#pragma once

#include "store/options.h"
#include "store/register.h"

namespace horavex {

/// Stores a value of an option unless it is in force already. What changes nothing by itself is no
/// value of the user's and becomes absent; one in its place is needed only in front of a
/// machine-wide value.
template <class Option, class Value>
void SaveChange(const Option& option, const Value& value, const Value& none) {
    if (value == ReadOption(option)) {
        return;
    }
    if (value == none) {
        std::int32_t result = 0;
        CRegister().REGDeleteSetting(kLocalMachine, kOptionsKey, option.name, result);
    }
    if (value != ReadOption(option)) {
        SaveOption(option, value);
    }
}

}  // namespace horavex
