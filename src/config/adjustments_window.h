#pragma once

namespace horavex {

class Form;

/// Opens the window "Adjustments" in front of another one. Does nothing while a commit runs.
void OpenAdjustments(Form& owner);

/// Binds its handlers and the ways to it.
void BindAdjustmentsWindow();

}  // namespace horavex
