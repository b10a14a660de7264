#include "desktop/form_window/menu_style.h"

#include <QApplication>
#include <QPainter>
#include <QPointer>
#include <QProxyStyle>
#include <QStyleOption>

namespace horavex {

namespace {

class MenuStyle : public QProxyStyle {
public:
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
        painter->setLayoutDirection(option->direction);
        QProxyStyle::drawControl(element, option, painter, widget);
    }
};

}  // namespace

QStyle* RightToLeftMenuStyle() {
    static QPointer<QStyle> style;
    if (style.isNull()) {
        style = new MenuStyle;
        style->setParent(qApp);
    }
    return style;
}

}  // namespace horavex
