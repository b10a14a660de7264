#pragma once

#include "desktop/form_window/menu.h"

namespace horavex {

/// The face's menus are in its colours by night, with edges that are seen on them, and black where
/// the desktop wants contrast.
MenuLook FaceMenuLook();

}  // namespace horavex
