#pragma once

#include <QString>

namespace horavex {

/// The style sheet of the face's menus, in its colours by night.
QString FaceMenuStyle();

}  // namespace horavex
