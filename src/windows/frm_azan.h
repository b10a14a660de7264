#pragma once

#include "base/prayers.h"
#include "forms/form.h"
#include "forms/form_instance.h"
#include "forms/timer.h"

namespace horavex {

/// The athan window, which holds a painted face of its own: the prayer's text and a command to
/// stop. It speaks no language itself.
class FrmAzan : public Form {
public:
    FrmAzan();
    ~FrmAzan() override;

    /// Moves the window up while it rises.
    Timer Timer1{*this, "Timer1", {.enabled = false, .intervalMs = 50}};

    /// Whose athan it is: a prayer's, or one that the user asked for.
    Alert prayerIndex = Alert::kFajr;
};

inline const FormInstance<FrmAzan> frmAzan;

}  // namespace horavex
