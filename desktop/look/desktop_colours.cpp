#include "desktop/look/desktop_colours.h"

#include <QApplication>
#include <QStyle>
#include <QStyleFactory>
#include <memory>

namespace horavex::look {

bool DesktopHasColours() {
    const std::unique_ptr<QStyle> usual(QStyleFactory::create(kUsualStyle));
    const QPalette plain = usual->standardPalette();
    const QPalette present = QGuiApplication::palette();
    return present.color(QPalette::Window) != plain.color(QPalette::Window) ||
           present.color(QPalette::Text) != plain.color(QPalette::Text);
}

}  // namespace horavex::look
