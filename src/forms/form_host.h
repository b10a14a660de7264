#pragma once

namespace horavex {

class Control;
class Form;

/// Where one form reports its changes, so that a front end can show them. The calls come in the
/// middle of an assignment, before its event: refresh, and touch nothing of the form.
class FormObserver {
public:
    virtual ~FormObserver() = default;

    /// A value of the control is another one, or it asked to be drawn again.
    virtual void ControlChanged(Control& control) = 0;

    /// The form's caption, visibility, place, size, window state or drawing is another one, or
    /// its focus or list of controls.
    virtual void FormChanged() = 0;
};

/// The windows of a front end. Without one, forms live all the same, unseen.
class FormHost {
public:
    virtual ~FormHost() = default;

    /// The form holds its definition and what was set before; its load handler comes next. The
    /// time to make a window and to observe the form.
    virtual void Loaded(Form& form) = 0;

    /// The form is hidden and unloaded. The time to observe it no longer.
    virtual void Unloaded(Form& form) = 0;

    /// Brings the form's window before the others.
    virtual void BroughtUp(Form& form) = 0;

    /// Delivers events, to this form alone and to all timers, until it is no longer visible.
    virtual void RunModal(Form& form) = 0;
};

/// Installs the front end; nullptr takes it away again.
void InstallFormHost(FormHost* host);

}  // namespace horavex
