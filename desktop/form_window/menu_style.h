#pragma once

class QStyle;

namespace horavex {

/// The application's style for menus that run from right to left. By itself it would write their
/// entries at the side where the application's own language begins, which is the left always.
QStyle* RightToLeftMenuStyle();

}  // namespace horavex
