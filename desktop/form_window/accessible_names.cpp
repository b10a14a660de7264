#include "desktop/form_window/accessible_names.h"

#include <QComboBox>
#include <QLabel>
#include <QStringList>
#include <QVariant>

namespace horavex {

namespace {

constexpr const char* kOwnName = "ownName";

/// The label of a list that drops down, seen by assistive tools alone: the toolkit tells them the
/// chosen row in place of such a list's name, and looks for a label beside it.
QLabel& SpokenLabelOf(QComboBox& list) {
    QWidget& parent = *list.parentWidget();
    for (auto* label : parent.findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (label->buddy() == &list) {
            return *label;
        }
    }
    auto* label = new QLabel(&parent);
    label->setBuddy(&list);
    label->hide();
    return *label;
}

void SetName(QWidget& widget, const QString& name) {
    widget.setAccessibleName(name);
    if (auto* list = qobject_cast<QComboBox*>(&widget)) {
        SpokenLabelOf(*list).setAccessibleName(name);
    }
}

}  // namespace

void SetOwnName(QWidget& widget, const QString& name) {
    widget.setProperty(kOwnName, name);
    widget.setAccessibleName(name);
}

QString NamesOfOthers(const QWidget& window, const QWidget& widget, const char* property) {
    QStringList names;
    for (const QString& other : widget.property(property).toString().split(' ')) {
        const auto* named = other.isEmpty() ? nullptr : window.findChild<QWidget*>(other);
        if (named != nullptr) {
            names << named->property(kOwnName).toString();
        }
    }
    const bool fromRight = window.layoutDirection() == Qt::RightToLeft;
    return names.join(fromRight ? QStringLiteral("\u060c ") : QStringLiteral(", "));
}

void NameWidgets(const QWidget& window) {
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        const QString name = NamesOfOthers(window, *widget, "namedBy");
        const QString description = NamesOfOthers(window, *widget, "describedBy");
        if (widget->accessibleName() != name && !name.isEmpty()) {
            SetName(*widget, name);
        }
        if (widget->accessibleDescription() != description && !description.isEmpty()) {
            widget->setAccessibleDescription(description);
        }
    }
}

}  // namespace horavex
