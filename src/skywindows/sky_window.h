#pragma once

namespace horavex {

class Form;

/// Opens the window "Sky" in front of another one and returns when it is closed.
void OpenSky(Form& owner);

/// Binds its handlers and the ways to it.
void BindSkyWindow();

}  // namespace horavex
