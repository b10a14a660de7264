#pragma once

namespace horavex {

class Form;

/// Opens the window "Athan and Reminders" in front of another one.
void OpenReminders(Form& owner);

/// Binds its handlers and the ways to it.
void BindRemindersWindow();

}  // namespace horavex
