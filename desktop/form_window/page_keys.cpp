#include "desktop/form_window/page_keys.h"

#include <QAbstractButton>
#include <QLabel>
#include <QShortcut>
#include <QTabWidget>
#include <set>
#include <vector>

#include "desktop/form_window/tab_pages.h"

namespace horavex {

namespace {

constexpr const char* kPageKey = "qt_page_key";

/// What the key goes to: a button, or what a label stands before; nullptr for other widgets.
QWidget* ReachedBy(QWidget& widget) {
    const auto* label = qobject_cast<QLabel*>(&widget);
    return label != nullptr ? label->buddy() : qobject_cast<QAbstractButton*>(&widget);
}

QKeySequence KeyOf(const QWidget& widget) {
    const auto* label = qobject_cast<const QLabel*>(&widget);
    return label != nullptr ? QKeySequence::mnemonic(label->text())
                            : static_cast<const QAbstractButton&>(widget).shortcut();
}

std::vector<QWidget*> WithKeys(const QWidget& window) {
    std::vector<QWidget*> found;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (ReachedBy(*widget) != nullptr && widget->isEnabled() && !KeyOf(*widget).isEmpty()) {
            found.push_back(widget);
        }
    }
    return found;
}

void Reach(QWidget& widget) {
    BringIntoView(widget);
    widget.setFocus(Qt::ShortcutFocusReason);
    if (auto* button = qobject_cast<QAbstractButton*>(&widget); button != nullptr) {
        button->click();
    }
}

void GiveKey(QWidget& window, const QKeySequence& key, QWidget& reached) {
    auto* shortcut = new QShortcut(key, &window);
    shortcut->setObjectName(kPageKey);
    QObject::connect(shortcut, &QShortcut::activated, &reached, [&reached] { Reach(reached); });
}

// One of them may have turned the page, and is at work still.
void TakeKeysBack(const QWidget& window) {
    for (QShortcut* shortcut : window.findChildren<QShortcut*>(kPageKey)) {
        shortcut->setEnabled(false);
        shortcut->deleteLater();
    }
}

}  // namespace

void GivePageKeys(QWidget& window) {
    TakeKeysBack(window);
    const std::vector<QWidget*> keyed = WithKeys(window);
    std::set<QKeySequence> given;
    for (const QWidget* widget : keyed) {
        if (widget->isVisibleTo(&window)) {
            given.insert(KeyOf(*widget));
        }
    }
    for (QWidget* widget : keyed) {
        if (IsSeenOnItsPage(*widget) && given.insert(KeyOf(*widget)).second) {
            GiveKey(window, KeyOf(*widget), *ReachedBy(*widget));
        }
    }
}

void BindPageKeys(QWidget& window) {
    for (QTabWidget* tabs : window.findChildren<QTabWidget*>()) {
        QObject::connect(tabs, &QTabWidget::currentChanged, &window,
                         [&window] { GivePageKeys(window); });
    }
}

}  // namespace horavex
