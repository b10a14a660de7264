#pragma once

namespace horavex {

/// Binds the window for a place that the database does not have. Its OK button only says that
/// there is nothing behind it yet.
void BindNewCoordinates();

}  // namespace horavex
