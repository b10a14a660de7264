#pragma once

namespace horavex {

class Form;

/// Opens the window "Crescent" in front of another one and returns when it is closed.
void OpenCrescent(Form& owner);

/// Binds its handlers and the ways to it.
void BindCrescentWindow();

}  // namespace horavex
