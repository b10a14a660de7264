#include "desktop/form_window/tab_pages.h"

#include <QScrollArea>
#include <QStackedWidget>
#include <QTabWidget>

#include "desktop/form_window/accessible_names.h"

namespace horavex {

namespace {

/// The tabs that the widget is a page of; nullptr if it is none.
QTabWidget* TabsOf(const QWidget& page) {
    const auto* stack = qobject_cast<QStackedWidget*>(page.parentWidget());
    return stack == nullptr ? nullptr : qobject_cast<QTabWidget*>(stack->parentWidget());
}

bool TakesTab(const QWidget& widget) {
    return (widget.focusPolicy() & Qt::TabFocus) != 0 && widget.focusProxy() == nullptr &&
           widget.isEnabled() && !widget.isWindow() && IsSeenOnItsPage(widget);
}

QString TitleOf(const QWidget& window, const QWidget& page) {
    return NamesOfOthers(window, page, "titledBy").replace('&', QStringLiteral("&&"));
}

}  // namespace

void TitlePages(const QWidget& window) {
    for (QTabWidget* tabs : window.findChildren<QTabWidget*>()) {
        for (int page = 0; page < tabs->count(); ++page) {
            tabs->setTabText(page, TitleOf(window, *tabs->widget(page)));
        }
    }
}

bool IsSeenOnItsPage(const QWidget& widget) {
    for (const QWidget* at = &widget; !at->isWindow(); at = at->parentWidget()) {
        if (at->isHidden() && TabsOf(*at) == nullptr) {
            return false;
        }
    }
    return true;
}

void BringIntoView(QWidget& widget) {
    for (QWidget* at = widget.parentWidget(); at != nullptr; at = at->parentWidget()) {
        if (QTabWidget* tabs = TabsOf(*at); tabs != nullptr) {
            tabs->setCurrentWidget(at);
        }
        if (auto* area = qobject_cast<QScrollArea*>(at); area != nullptr) {
            area->ensureWidgetVisible(&widget);
        }
    }
}

QWidget* NextByTab(QWidget& window, bool forward) {
    QWidget* const from = window.focusWidget() == nullptr ? &window : window.focusWidget();
    const auto after = [forward](const QWidget* at) {
        return forward ? at->nextInFocusChain() : at->previousInFocusChain();
    };
    for (QWidget* at = after(from); at != from; at = after(at)) {
        if (at->window() == &window && TakesTab(*at)) {
            return at;
        }
    }
    return nullptr;
}

}  // namespace horavex
