#include "desktop/face/face_menu_style.h"

#include "desktop/face/palette.h"

namespace horavex {

QString FaceMenuStyle() {
    return QStringLiteral(
               "QMenu { background: %1; color: %2; border: 1px solid %3; padding: 5px; }"
               "QMenu::item { padding: 6px 30px 6px 26px; border-radius: 4px; }"
               "QMenu::item:selected { background: %4; color: %2; }"
               "QMenu::item:disabled { color: %5; }"
               "QMenu::separator { height: 1px; background: %3; margin: 5px 10px; }")
        .arg(kSkyTop.name(), kCream.name(), kMenuEdge.name(), kMenuChosen.name(), kMenuOff.name());
}

}  // namespace horavex
