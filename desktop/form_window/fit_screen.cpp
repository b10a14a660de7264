#include "desktop/form_window/fit_screen.h"

#include <QLayout>
#include <QScrollArea>
#include <QScrollBar>
#include <QWindow>
#include <algorithm>

namespace horavex {

namespace {

constexpr QMargins kBroadFrame(4, 40, 4, 4);

QSize WholeContent(const QScrollArea& area) {
    const QWidget& content = *area.widget();
    const QSize least = content.minimumSizeHint();
    return {least.width() + area.verticalScrollBar()->sizeHint().width(),
            std::max(least.height(), content.heightForWidth(least.width()))};
}

/// A change inside a part reaches the layout around it by events, which none that is not on view
/// yet takes.
void MakeInnerLayoutsTell(const QWidget& window) {
    const QList<QWidget*> widgets = window.findChildren<QWidget*>();
    std::for_each(widgets.rbegin(), widgets.rend(), [](QWidget* widget) {
        if (widget->layout() != nullptr) {
            widget->layout()->activate();
        }
        widget->updateGeometry();  // pages behind tabs have no layout around them
    });
}

/// Texts that wrap may want more height at a width than at their narrowest.
QSize LeastSize(const QWidget& window) {
    const QSize least = window.minimumSizeHint();
    const QLayout* layout = window.layout();
    if (layout == nullptr || !layout->hasHeightForWidth()) {
        return least;
    }
    const int width = std::max(least.width(), window.width());
    return {least.width(), std::max(least.height(), layout->totalMinimumHeightForWidth(width))};
}

}  // namespace

QSize WholeSize(QWidget& window) {
    MakeInnerLayoutsTell(window);
    const QList<QScrollArea*> areas = window.findChildren<QScrollArea*>();
    for (QScrollArea* area : areas) {
        area->setMinimumSize(WholeContent(*area));
    }
    MakeInnerLayoutsTell(window);
    const QSize size = LeastSize(window);
    for (QScrollArea* area : areas) {
        area->setMinimumSize(0, 0);
    }
    MakeInnerLayoutsTell(window);
    return size;
}

QMargins FrameAround(const QWidget& window) {
    if (window.windowFlags().testFlag(Qt::FramelessWindowHint)) {
        return {};
    }
    const QMargins frame = window.windowHandle()->frameMargins();
    return frame.isNull() ? kBroadFrame : frame;
}

QRect PutInto(const QRect& area, const QRect& window, const QMargins& frame) {
    const QRect free = area.marginsRemoved(frame);
    const QSize size = window.size().boundedTo(free.size());
    const QSize room = free.size() - size;
    return {QPoint(std::clamp(window.x(), area.x(), area.x() + room.width()),
                   std::clamp(window.y(), area.y(), area.y() + room.height())),
            size};
}

}  // namespace horavex
