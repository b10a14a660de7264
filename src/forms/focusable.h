#pragma once

#include "forms/control.h"

namespace horavex {

/// A control that can hold the keyboard's focus. Of a form's controls one or none holds it.
class Focusable : public Control {
public:
    using Control::Control;

    Handler onGotFocus;
    Handler onLostFocus;
    Handler onKeyUp;

    /// Moves the focus here: the former holder's onLostFocus, then onGotFocus. Does nothing for
    /// the holder itself, on a hidden form, and where the control does not accept users.
    void SetFocus();
    bool HasFocus() const;

    /// What a front end reports: the focus came here, left for no other control of the form, a
    /// key was released.
    void UserFocus() { SetFocus(); }
    void UserLeave();
    void UserKeyUp();

protected:
    /// A user's action takes the focus first. False when the action is to be ignored.
    bool BeginUserAction();

    /// One typed key of a user that left the given text: the text changes, then the key is up.
    void Type(const std::string& text);

    /// The same without the release of the key.
    void Edit(const std::string& text);
};

}  // namespace horavex
