#include "desktop/form_window/accessible_names.h"

#include <QVariant>

namespace horavex {

namespace {

QString NameOfOther(const QWidget& window, const QWidget& widget, const char* property) {
    const QString name = widget.property(property).toString();
    const QWidget* other = name.isEmpty() ? nullptr : window.findChild<QWidget*>(name);
    return other == nullptr ? QString() : other->accessibleName();
}

}  // namespace

void NameWidgets(const QWidget& window) {
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        const QString name = NameOfOther(window, *widget, "namedBy");
        const QString description = NameOfOther(window, *widget, "describedBy");
        if (widget->accessibleName() != name && !name.isEmpty()) {
            widget->setAccessibleName(name);
        }
        if (widget->accessibleDescription() != description && !description.isEmpty()) {
            widget->setAccessibleDescription(description);
        }
    }
}

}  // namespace horavex
