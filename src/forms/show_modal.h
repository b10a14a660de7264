#pragma once

#include "forms/form.h"

namespace horavex {

/// ShowModal for a form whose load may fail: it is unloaded again before the fault goes on, so that
/// what its load has taken is given back and the next showing loads it anew.
inline void ShowModalOrUnload(Form& form, Form* owner) {
    try {
        form.ShowModal(owner);
    } catch (...) {
        form.Unload();
        throw;
    }
}

}  // namespace horavex
