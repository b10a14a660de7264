#include "desktop/look/window_look.h"

#include <QAbstractButton>
#include <QVariant>

#include "desktop/look/icons.h"

namespace horavex::look {

namespace {

double PartOf(const QString& size) {
    if (size == QLatin1String("small")) {
        return kSmall;
    }
    return size == QLatin1String("large") ? kLarge : kHeading;
}

void SizeText(QWidget& widget, double usual) {
    const QVariant size = widget.property("textSize");
    if (size.isValid()) {
        QFont font = widget.font();
        font.setPointSizeF(usual * PartOf(size.toString()));
        widget.setFont(font);
    }
}

void SetSign(QAbstractButton& button) {
    const QVariant sign = button.property("sign");
    if (sign.isValid()) {
        button.setIcon(IconOf(sign.toString()));
    }
}

}  // namespace

void Dress(const QWidget& window) {
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        SizeText(*widget, window.font().pointSizeF());
    }
    for (QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
        SetSign(*button);
    }
}

}  // namespace horavex::look
